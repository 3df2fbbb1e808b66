#include "platform/write_protection.h"

#include "platform/posix/status.h"

bool IsWriteProtected(const std::filesystem::path& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && !MayWrite(path, status);
}
