#include "platform/file_lock.h"

#include "platform/path.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Longer than anyone takes to replace a small file on a slow disk, shorter than anyone waits for a
/// window that does not answer.
constexpr std::chrono::seconds kPatience{5};
constexpr std::chrono::microseconds kNap{500};

/// The folders whose locks this process holds: the system would let it wait for itself.
class CHeldFolders
{
public:
    using Folder = std::pair<dev_t, ino_t>;

    bool Add(const Folder& folder)
    {
        const std::lock_guard guard(m_guard);
        return m_folders.insert(folder).second;
    }

    void Remove(const Folder& folder)
    {
        const std::lock_guard guard(m_guard);
        m_folders.erase(folder);
    }

private:
    std::mutex m_guard;
    std::set<Folder> m_folders;
};

CHeldFolders& HeldFolders()
{
    static CHeldFolders folders;
    return folders;
}

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
    m_descriptor = OpenFolderOf(path);
    if (m_descriptor >= 0) {
        Take();
    }
}

CFileLock::~CFileLock()
{
    if (m_descriptor >= 0) {
        HeldFolders().Remove({m_device, m_inode});
        close(m_descriptor);
    }
}

/// Gives the descriptor up where there is nothing to hold.
void CFileLock::Take()
{
    struct stat status = {};
    if (fstat(m_descriptor, &status) == 0) {
        m_device = status.st_dev;
        m_inode = status.st_ino;
        if (HeldFolders().Add({m_device, m_inode})) {
            if (WaitForLock(m_descriptor)) {
                return;
            }
            HeldFolders().Remove({m_device, m_inode});
        }
    }
    close(std::exchange(m_descriptor, -1));
}
