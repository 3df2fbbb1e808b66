#include "platform/temporary_places.h"

#include "platform/windows/handle.h"

#include <cerrno>
#include <string>
#include <utility>

#include <fcntl.h>

namespace fs = std::filesystem;

namespace {

/// Renaming, and giving a file to another owner, are rights of their own.
constexpr DWORD kRights = GENERIC_READ | GENERIC_WRITE | DELETE;

/// Removes the open file itself, whatever bears its name by now.
bool Remove(HANDLE handle)
{
    FILE_DISPOSITION_INFO removed = {};
    removed.DeleteFile = TRUE;
    return SetFileInformationByHandle(handle, FileDispositionInfo, &removed, sizeof removed) != 0;
}

/// True if the locked file is still the one of that name, is about to stay, and is no way to
/// another file's content. Who held the lock before may have renamed or removed it.
bool IsOurs(HANDLE handle, const fs::path& place)
{
    constexpr DWORD kNoFile = FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY;
    FILE_STANDARD_INFO standard = {};
    BY_HANDLE_FILE_INFORMATION info = {};
    return GetFileInformationByHandleEx(handle, FileStandardInfo, &standard, sizeof standard) !=
               0 &&
           GetFileInformationByHandle(handle, &info) != 0 && standard.DeletePending == FALSE &&
           standard.NumberOfLinks == 1 && (info.dwFileAttributes & kNoFile) == 0 &&
           IsHandleAt(handle, place);
}

/// A descriptor for a file that was just made, which goes again where there is none to be had.
int KeepMade(CHandle handle, const fs::path& place)
{
    const int descriptor = DescriptorOf(std::move(handle), _O_RDWR);
    if (descriptor < 0) {
        const int error = errno;
        DeleteFileW(place.c_str());
        errno = error;
    }
    return descriptor;
}

int MakeLocked(const fs::path& place)
{
    CHandle handle = OpenFileShared(place, kRights, CREATE_NEW);
    if (!handle.IsValid()) {
        SetErrno();
        return -1;
    }
    if (!LockHandle(handle.Get())) {
        // Taken for a leftover by another program between its making and this.
        SetErrno();
        Remove(handle.Get());
        return -1;
    }
    if (!IsOurs(handle.Get(), place)) {
        // The same, and that program has removed it already.
        errno = EAGAIN;
        return -1;
    }
    return KeepMade(std::move(handle), place);
}

} // namespace

int TakePlace(const fs::path& place)
{
    // What is left over is not used again: a program that still holds it could read what is
    // written.
    RemoveLeftover(place);
    return MakeLocked(place);
}

void RemoveLeftover(const fs::path& place)
{
    const CHandle handle = OpenFileShared(place, kRights, OPEN_EXISTING, kNoLinkFollowed);
    if (handle.IsValid() && LockHandle(handle.Get()) && IsOurs(handle.Get(), place)) {
        Remove(handle.Get());
    }
}

int MakeUnusedPlace(const fs::path& folder, fs::path& place)
{
    constexpr int kMostTries = 100;
    for (int i = 0; i < kMostTries; ++i) {
        const std::wstring number =
            std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetTickCount64() + i);
        place = folder / (L".radsel-" + number + L".tmp");
        CHandle handle = OpenFileShared(place, kRights, CREATE_NEW);
        if (handle.IsValid()) {
            const int descriptor = KeepMade(std::move(handle), place);
            if (descriptor < 0) {
                place.clear();
            }
            return descriptor;
        }
        const DWORD error = GetLastError();
        SetErrno(error);
        if (error != ERROR_FILE_EXISTS) {
            break;
        }
    }
    place.clear();
    return -1;
}
