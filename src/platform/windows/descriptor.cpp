#include "platform/descriptor.h"

#include "platform/windows/handle.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <io.h>

namespace {

/// What one call may read or write.
constexpr std::size_t kMostBytes = 1U << 30;

DWORD RightsOf(FileAccess access)
{
    switch (access) {
    case FileAccess::read:
        return GENERIC_READ;
    case FileAccess::write:
        return GENERIC_WRITE;
    case FileAccess::readWrite:
        return GENERIC_READ | GENERIC_WRITE;
    }
    return GENERIC_READ;
}

/// The system does not tell a folder that is a file from one that is missing.
bool IsFile(const std::filesystem::path& path)
{
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

DWORD AtMost(std::size_t count)
{
    return static_cast<DWORD>(std::min(count, kMostBytes));
}

} // namespace

int OpenDescriptor(const std::filesystem::path& file, FileAccess access)
{
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        SetErrno();
        if (errno == ENOENT && IsFile(file.parent_path())) {
            errno = ENOTDIR;
        }
        return -1;
    }
    const bool isWritten = access != FileAccess::read;
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        errno = EISDIR;
        return -1;
    }
    if (isWritten && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        errno = EACCES;
        return -1;
    }
    CHandle handle = OpenFileShared(file, RightsOf(access), OPEN_EXISTING);
    if (!handle.IsValid()) {
        SetErrno();
        return -1;
    }
    if (GetFileType(handle.Get()) != FILE_TYPE_DISK) {
        errno = EACCES;
        return -1;
    }
    return DescriptorOf(std::move(handle), isWritten ? _O_RDWR : _O_RDONLY);
}

// The C library would do the same, but tells most failures of the system as one.
std::ptrdiff_t ReadDescriptor(int descriptor, void* buffer, std::size_t count)
{
    DWORD done = 0;
    if (ReadFile(HandleOf(descriptor), buffer, AtMost(count), &done, nullptr) == 0) {
        SetErrno();
        return -1;
    }
    return static_cast<std::ptrdiff_t>(done);
}

std::ptrdiff_t WriteDescriptor(int descriptor, const void* buffer, std::size_t count)
{
    DWORD done = 0;
    if (WriteFile(HandleOf(descriptor), buffer, AtMost(count), &done, nullptr) == 0) {
        SetErrno();
        return -1;
    }
    if (done == 0 && count != 0) {
        errno = ENOSPC;
        return -1;
    }
    return static_cast<std::ptrdiff_t>(done);
}

std::int64_t SeekDescriptor(int descriptor, std::int64_t position)
{
    return _lseeki64(descriptor, position, SEEK_SET);
}

std::int64_t SeekDescriptorToEnd(int descriptor)
{
    return _lseeki64(descriptor, 0, SEEK_END);
}

std::int64_t PositionOfDescriptor(int descriptor)
{
    return _lseeki64(descriptor, 0, SEEK_CUR);
}

std::int64_t LengthOfDescriptor(int descriptor)
{
    LARGE_INTEGER length = {};
    if (GetFileSizeEx(HandleOf(descriptor), &length) == 0) {
        SetErrno();
        return -1;
    }
    return length.QuadPart;
}

bool SetLengthOfDescriptor(int descriptor, std::int64_t length)
{
    FILE_END_OF_FILE_INFO end = {};
    end.EndOfFile.QuadPart = length;
    const bool done =
        SetFileInformationByHandle(HandleOf(descriptor), FileEndOfFileInfo, &end, sizeof end) != 0;
    if (!done) {
        SetErrno();
    }
    return done;
}

bool SyncDescriptor(int descriptor)
{
    if (FlushFileBuffers(HandleOf(descriptor)) != 0) {
        return true;
    }
    const DWORD error = GetLastError();
    SetErrno(error);
    // Nothing was written through a descriptor that may not write.
    return error == ERROR_ACCESS_DENIED;
}

bool CloseDescriptor(int descriptor)
{
    return _close(descriptor) == 0;
}
