#pragma once

#include "platform/text.h"

#include <filesystem>

/// The program's settings, lines "key = value" of an .ini file in UTF-8. They are read once: the
/// module asks for some of them at every click, and no answer of a host should cost a file. False
/// if the file cannot be read.
bool LoadSettings(const std::filesystem::path& file);

/// The value of a key, empty if the file does not have it. A value that names a folder counts from
/// the folder of the file.
CString Setting(const char* key);
std::filesystem::path FolderSetting(const char* key);
