#pragma once

#include <filesystem>

/// Whether there is such a file or folder and this user may not write to it, or nobody may.
bool IsWriteProtected(const std::filesystem::path& path);
