#pragma once

#include <filesystem>

/// The file of the program that runs, as an absolute path; empty where the system does not tell.
std::filesystem::path ProgramFile();
