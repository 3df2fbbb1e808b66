#include "platform/lock_file.h"

#include "platform/windows/handle.h"

#include <cerrno>
#include <cstdint>
#include <utility>

#include <fcntl.h>

namespace {

/// The system counts the time in units of 100 ns.
using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

FILETIME Now()
{
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    return now;
}

Ticks TicksOf(const FILETIME& time)
{
    return Ticks(static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
}

int Opened(CHandle handle, int flags)
{
    BY_HANDLE_FILE_INFORMATION info = {};
    if (!handle.IsValid() || GetFileInformationByHandle(handle.Get(), &info) == 0) {
        SetErrno();
        return -1;
    }
    if ((info.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        errno = ELOOP;
        return -1;
    }
    return DescriptorOf(std::move(handle), flags);
}

} // namespace

int OpenLockFile(const std::filesystem::path& file, bool& writable)
{
    CHandle handle =
        OpenFileShared(file, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS, kNoLinkFollowed);
    writable = handle.IsValid();
    if (writable || GetLastError() != ERROR_ACCESS_DENIED) {
        return Opened(std::move(handle), _O_RDWR);
    }
    const int readable =
        Opened(OpenFileShared(file, GENERIC_READ, OPEN_EXISTING, kNoLinkFollowed), _O_RDONLY);
    if (readable < 0 && errno == ENOENT) {
        // There is no lock to be read, and none may be made.
        errno = EACCES;
    }
    return readable;
}

/// What lies in a user's folders other users cannot open.
int OpenOwnLockFile(const std::filesystem::path& file)
{
    CHandle handle = OpenFileShared(file, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    if (!handle.IsValid()) {
        SetErrno();
        return -1;
    }
    return DescriptorOf(std::move(handle), _O_RDWR);
}

LockAnswer TakeLock(int descriptor)
{
    if (LockHandle(HandleOf(descriptor))) {
        return LockAnswer::taken;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING) {
        return LockAnswer::held;
    }
    SetErrno(error);
    return LockAnswer::none;
}

bool IsStillAt(int descriptor, const std::filesystem::path& file)
{
    return IsHandleAt(HandleOf(descriptor), file);
}

std::optional<std::chrono::seconds> TimeSinceTouched(int descriptor)
{
    FILETIME written = {};
    if (GetFileTime(HandleOf(descriptor), nullptr, nullptr, &written) == 0) {
        SetErrno();
        return std::nullopt;
    }
    return std::chrono::duration_cast<std::chrono::seconds>(TicksOf(Now()) - TicksOf(written));
}

bool TouchDescriptor(int descriptor)
{
    const FILETIME now = Now();
    if (SetFileTime(HandleOf(descriptor), nullptr, nullptr, &now) == 0) {
        SetErrno();
        return false;
    }
    return true;
}
