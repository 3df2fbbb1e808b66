#include "platform/descriptor.h"

#include "platform/posix/status.h"

#include <cerrno>

namespace {

int FlagsOf(FileAccess access)
{
    switch (access) {
    case FileAccess::read:
        return O_RDONLY;
    case FileAccess::write:
        return O_WRONLY;
    case FileAccess::readWrite:
        return O_RDWR;
    }
    return O_RDONLY;
}

} // namespace

int OpenDescriptor(const std::filesystem::path& file, FileAccess access)
{
    struct stat status = {};
    if (stat(file.c_str(), &status) != 0) {
        return -1;
    }
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EACCES;
        return -1;
    }
    if (access != FileAccess::read && (status.st_mode & kAnyWriteBit) == 0) {
        errno = EACCES;
        return -1;
    }
    return open(file.c_str(), FlagsOf(access) | O_CLOEXEC);
}

std::ptrdiff_t ReadDescriptor(int descriptor, void* buffer, std::size_t count)
{
    return read(descriptor, buffer, count);
}

std::ptrdiff_t WriteDescriptor(int descriptor, const void* buffer, std::size_t count)
{
    return write(descriptor, buffer, count);
}

std::int64_t SeekDescriptor(int descriptor, std::int64_t position)
{
    return lseek(descriptor, position, SEEK_SET);
}

std::int64_t SeekDescriptorToEnd(int descriptor)
{
    return lseek(descriptor, 0, SEEK_END);
}

std::int64_t PositionOfDescriptor(int descriptor)
{
    return lseek(descriptor, 0, SEEK_CUR);
}

std::int64_t LengthOfDescriptor(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 ? status.st_size : -1;
}

bool SetLengthOfDescriptor(int descriptor, std::int64_t length)
{
    return ftruncate(descriptor, length) == 0;
}

bool SyncDescriptor(int descriptor)
{
    return fsync(descriptor) == 0;
}

bool CloseDescriptor(int descriptor)
{
    return close(descriptor) == 0;
}
