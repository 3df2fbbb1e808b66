#include "platform/file_lock.h"

#include "platform/path.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Longer than anyone takes to replace a small file on a slow disk, shorter than anyone waits for a
/// window that does not answer.
constexpr std::chrono::seconds kPatience{5};
constexpr std::chrono::microseconds kNap{500};

int OpenFolderOf(const CString& path)
{
    std::error_code error;
    const std::filesystem::path file = FindFile(path, error);
    const std::filesystem::path folder =
        file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
    return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool WaitForLock(int descriptor)
{
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        const bool isHeld = errno == EWOULDBLOCK || errno == EINTR;
        if (!isHeld || std::chrono::steady_clock::now() >= end) {
            return false;
        }
        std::this_thread::sleep_for(kNap);
    }
    return true;
}

} // namespace

CFileLock::CFileLock(const CString& path)
{
    const int descriptor = OpenFolderOf(path);
    if (descriptor >= 0 && !Take(descriptor)) {
        close(descriptor);
    }
}

CFileLock::~CFileLock()
{
    if (m_lock != kNone) {
        ReleaseFolder(m_folder);
        close(static_cast<int>(m_lock));
    }
}

/// False where there is nothing to hold.
bool CFileLock::Take(std::intptr_t lock)
{
    const int descriptor = static_cast<int>(lock);
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) {
        return false;
    }
    m_folder = {status.st_dev, status.st_ino};
    if (!HoldFolder(m_folder)) {
        return false;
    }
    if (!WaitForLock(descriptor)) {
        ReleaseFolder(m_folder);
        return false;
    }
    m_lock = lock;
    return true;
}
