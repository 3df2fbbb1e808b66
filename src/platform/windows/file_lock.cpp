#include "platform/file_lock.h"

#include "platform/file_state.h"
#include "platform/path.h"
#include "platform/windows/handle.h"

#include <optional>
#include <string>
#include <system_error>

namespace {

/// Longer than anyone takes to replace a small file on a slow disk, shorter than anyone waits for a
/// window that does not answer.
constexpr DWORD kLockPatience = 5000; // ms

std::optional<CFolderKey> FolderOf(const CString& path)
{
    std::error_code error;
    const std::filesystem::path folder = FindFile(path, error).parent_path();
    const std::optional<CFileState> state = StateOf(folder);
    return state ? std::optional(CFolderKey{state->nDevice, state->nFile}) : std::nullopt;
}

/// A name that every user of the machine may hold, whoever made it first.
HANDLE MakeMutex(const std::wstring& name)
{
    SECURITY_DESCRIPTOR everybody = {};
    SECURITY_ATTRIBUTES attributes = {sizeof attributes, &everybody, FALSE};
    if (InitializeSecurityDescriptor(&everybody, SECURITY_DESCRIPTOR_REVISION) == 0 ||
        SetSecurityDescriptorDacl(&everybody, TRUE, nullptr, FALSE) == 0) {
        return nullptr;
    }
    return CreateMutexW(&attributes, FALSE, name.c_str());
}

/// Folders cannot be locked here. What can is a name, and all users of the machine share it.
std::wstring NameOf(const CFolderKey& folder)
{
    return L"Global\\radsel-folder-" + std::to_wstring(folder.nDevice) + L"-" +
           std::to_wstring(folder.nFile);
}

} // namespace

CFileLock::CFileLock(const CString& path)
{
    const std::optional<CFolderKey> folder = FolderOf(path);
    if (folder && HoldFolder(*folder)) {
        m_folder = *folder;
        CHandle mutex(MakeMutex(NameOf(*folder)));
        if (!mutex.IsValid() || !Take(reinterpret_cast<std::intptr_t>(mutex.Get()))) {
            ReleaseFolder(m_folder);
            return;
        }
        mutex.Release();
    }
}

CFileLock::~CFileLock()
{
    if (m_lock != kNone) {
        const CHandle mutex(reinterpret_cast<HANDLE>(m_lock));
        ReleaseMutex(mutex.Get());
        ReleaseFolder(m_folder);
    }
}

/// A program that ends while it holds the lock leaves it to the next one.
bool CFileLock::Take(std::intptr_t lock)
{
    const DWORD answer = WaitForSingleObject(reinterpret_cast<HANDLE>(lock), kLockPatience);
    if (answer != WAIT_OBJECT_0 && answer != WAIT_ABANDONED) {
        return false;
    }
    m_lock = lock;
    return true;
}
