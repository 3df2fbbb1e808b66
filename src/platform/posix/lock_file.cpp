#include "platform/lock_file.h"

#include "platform/posix/status.h"

#include <cerrno>
#include <ctime>

#include <sys/file.h>

int OpenLockFile(const std::filesystem::path& file, bool& writable)
{
    constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int descriptor = open(file.c_str(), O_RDWR | O_CREAT | kFlags, 0666);
    writable = descriptor >= 0;
    if (writable || errno != EACCES) {
        return descriptor;
    }
    const int readable = open(file.c_str(), O_RDONLY | kFlags);
    if (readable < 0 && errno == ENOENT) {
        // There is no lock to be read, and none may be made.
        errno = EACCES;
    }
    return readable;
}

int OpenOwnLockFile(const std::filesystem::path& file)
{
    return open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
}

LockAnswer TakeLock(int descriptor)
{
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return LockAnswer::taken;
    }
    return errno == EWOULDBLOCK ? LockAnswer::held : LockAnswer::none;
}

bool IsStillAt(int descriptor, const std::filesystem::path& file)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor, &opened) == 0 && lstat(file.c_str(), &named) == 0 &&
           AreTheSame(opened, named);
}

std::optional<std::chrono::seconds> TimeSinceTouched(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        return std::nullopt;
    }
    return std::chrono::seconds(std::time(nullptr) - status.st_mtime);
}

bool TouchDescriptor(int descriptor)
{
    return futimens(descriptor, nullptr) == 0;
}
