#include "platform/temporary_places.h"

#include "platform/windows/handle.h"

#include <string>
#include <utility>

#include <fcntl.h>

namespace fs = std::filesystem;

namespace {

/// Renaming, and giving a file to another owner, are rights of their own.
constexpr DWORD kRights = GENERIC_READ | GENERIC_WRITE | DELETE;

/// A link to another file is no leftover but somebody's.
constexpr DWORD kNoLink = FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT;

/// Removes the open file itself, whatever bears its name by now.
bool Remove(HANDLE handle)
{
    FILE_DISPOSITION_INFO removed = {};
    removed.DeleteFile = TRUE;
    return SetFileInformationByHandle(handle, FileDispositionInfo, &removed, sizeof removed) != 0;
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
    return DescriptorOf(std::move(handle), _O_RDWR);
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
    const CHandle handle = OpenFileShared(place, kRights, OPEN_EXISTING, kNoLink);
    if (handle.IsValid() && LockHandle(handle.Get())) {
        Remove(handle.Get());
    }
}

int MakeUnusedPlace(const fs::path& folder, fs::path& place)
{
    constexpr int kMostTries = 100;
    int descriptor = -1;
    for (int i = 0; descriptor < 0 && i < kMostTries; ++i) {
        const std::wstring number =
            std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetTickCount64() + i);
        place = folder / (L".radsel-" + number + L".tmp");
        CHandle handle = OpenFileShared(place, kRights, CREATE_NEW);
        if (!handle.IsValid()) {
            SetErrno();
            place.clear();
            if (GetLastError() != ERROR_FILE_EXISTS) {
                return -1;
            }
            continue;
        }
        descriptor = DescriptorOf(std::move(handle), _O_RDWR);
    }
    return descriptor;
}
