#pragma once

#include <filesystem>

// The system's header has macros named like functions of this module.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define NOGDI
#include <windows.h>

/// A handle of the system that is closed with this object.
class CHandle
{
public:
    explicit CHandle(HANDLE handle) : m_handle(handle) {}
    ~CHandle()
    {
        if (IsValid()) {
            CloseHandle(m_handle);
        }
    }
    CHandle(CHandle&& other) noexcept : m_handle(other.Release()) {}
    CHandle(const CHandle&) = delete;
    CHandle& operator=(const CHandle&) = delete;

    bool IsValid() const { return m_handle != INVALID_HANDLE_VALUE && m_handle != nullptr; }
    HANDLE Get() const { return m_handle; }

    HANDLE Release() noexcept
    {
        const HANDLE handle = m_handle;
        m_handle = nullptr;
        return handle;
    }

private:
    HANDLE m_handle;
};

/// Sets errno to what a failure of the system comes to; without one, to that of the last call.
void SetErrno(DWORD error);
void SetErrno();

/// Opens a file or folder so that others may read, write, rename and remove it meanwhile.
CHandle OpenFileShared(const std::filesystem::path& path, DWORD access, DWORD disposition,
                       DWORD flags = FILE_ATTRIBUTE_NORMAL);

/// Opens a link itself instead of what it leads to.
constexpr DWORD kNoLinkFollowed = FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT;

/// Whether an open file or folder is the one that stands at the path.
bool IsHandleAt(HANDLE handle, const std::filesystem::path& path);

/// The handle behind a descriptor.
HANDLE HandleOf(int descriptor);

/// A descriptor for a handle, which belongs to it from now on; below 0 with errno set if that
/// fails, and then the handle is closed.
int DescriptorOf(CHandle handle, int flags);

/// Locks an open file for this process; false if another one holds its lock. Ends with the handle.
bool LockHandle(HANDLE handle);
