#include "platform/windows/handle.h"

#include "platform/system_error.h"

#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <io.h>

void SetErrno(DWORD error)
{
    errno = ErrnoOf({static_cast<int>(error), std::system_category()});
}

void SetErrno()
{
    SetErrno(GetLastError());
}

CHandle OpenFileShared(const std::filesystem::path& path, DWORD access, DWORD disposition,
                       DWORD flags)
{
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return CHandle(
        CreateFileW(path.c_str(), access, kShared, nullptr, disposition, flags, nullptr));
}

bool IsHandleAt(HANDLE handle, const std::filesystem::path& path)
{
    const CHandle named = OpenFileShared(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING,
                                         kNoLinkFollowed | FILE_FLAG_BACKUP_SEMANTICS);
    BY_HANDLE_FILE_INFORMATION a = {};
    BY_HANDLE_FILE_INFORMATION b = {};
    return named.IsValid() && GetFileInformationByHandle(handle, &a) != 0 &&
           GetFileInformationByHandle(named.Get(), &b) != 0 &&
           a.dwVolumeSerialNumber == b.dwVolumeSerialNumber &&
           a.nFileIndexHigh == b.nFileIndexHigh && a.nFileIndexLow == b.nFileIndexLow;
}

HANDLE HandleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

int DescriptorOf(CHandle handle, int flags)
{
    const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle.Get()),
                                           flags | _O_BINARY | _O_NOINHERIT);
    if (descriptor >= 0) {
        handle.Release();
    }
    return descriptor;
}

bool LockHandle(HANDLE handle)
{
    // Locks keep others from the bytes that they cover: this one covers a byte that no file has.
    OVERLAPPED place = {};
    place.Offset = 0xFFFFFFFE;
    place.OffsetHigh = 0x7FFFFFFF;
    return LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                      &place) != 0;
}
