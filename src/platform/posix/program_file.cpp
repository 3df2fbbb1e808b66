#include "platform/program_file.h"

#include <system_error>

std::filesystem::path ProgramFile()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}
