#include "platform/program_file.h"

#include <string>

#include <windows.h>

std::filesystem::path ProgramFile()
{
    constexpr DWORD kLongestPath = 32768;
    std::wstring file(kLongestPath, L'\0');
    file.resize(GetModuleFileNameW(nullptr, file.data(), kLongestPath));
    return file;
}
