#include "platform/file_replacement.h"

#include "platform/file_bytes.h"
#include "platform/temporary_file.h"

#include <cerrno>
#include <string>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kPermissionBits = 07777;

/// Permission bits of a new file under the process's mask.
mode_t DefaultMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// 0 if the target may be replaced, else the error.
int CheckTarget(const fs::path& target, const struct stat& status)
{
    if (!S_ISREG(status.st_mode)) {
        return S_ISDIR(status.st_mode) ? EISDIR : EACCES;
    }
    const bool writable = (status.st_mode & kAnyWriteBit) != 0 &&
                          faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) == 0;
    return writable ? 0 : EACCES;
}

/// Fills a created file with what its target holds; false with errno set if that fails.
bool CopyContents(const fs::path& from, int to)
{
    const int source = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (source < 0) {
        return errno == ENOENT;
    }
    std::string bytes;
    const bool ok = ReadAll(source, bytes) && WriteAll(to, bytes.data(), bytes.size());
    const int error = errno;
    close(source);
    errno = error;
    return ok && lseek(to, 0, SEEK_SET) == 0;
}

/// Makes a finished rename last over a crash of the machine. Some file systems cannot do it for a
/// folder; the rename stands all the same.
void SyncFolderOf(const fs::path& file)
{
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

/// Gives a new file to whom the old one belongs; false if the process may not.
bool GiveTo(int descriptor, const struct stat& old)
{
    struct stat fresh = {};
    return fstat(descriptor, &fresh) == 0 &&
           ((fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid) ||
            fchown(descriptor, old.st_uid, old.st_gid) == 0) &&
           fchmod(descriptor, old.st_mode & kPermissionBits) == 0;
}

bool Overwrite(int descriptor, const std::string& bytes)
{
    return lseek(descriptor, 0, SEEK_SET) == 0 &&
           WriteAll(descriptor, bytes.data(), bytes.size()) &&
           ftruncate(descriptor, static_cast<off_t>(bytes.size())) == 0 && fsync(descriptor) == 0;
}

/// Writes what was held back into the target, or leaves it as it was.
bool WriteInto(const fs::path& target, int held)
{
    const int descriptor = open(target.c_str(), O_RDWR | O_CLOEXEC);
    std::string next;
    std::string before;
    if (descriptor < 0) {
        return false;
    }
    bool done = lseek(held, 0, SEEK_SET) == 0 && ReadAll(held, next) && ReadAll(descriptor, before);
    if (done && !Overwrite(descriptor, next)) {
        const int error = errno;
        Overwrite(descriptor, before);
        errno = error;
        done = false;
    }
    const int error = errno;
    close(descriptor);
    errno = error;
    return done;
}

} // namespace

int CFileReplacement::OpenBeside(const struct stat* old)
{
    const int descriptor = OpenTemporary(m_target, m_temporary);
    if (descriptor < 0) {
        return -1;
    }
    if (old != nullptr ? GiveTo(descriptor, *old) : fchmod(descriptor, DefaultMode()) == 0) {
        return descriptor;
    }
    return Fail(descriptor);
}

int CFileReplacement::Fail(int descriptor)
{
    const int error = errno;
    Drop();
    close(descriptor);
    errno = error;
    return -1;
}

int CFileReplacement::Begin(const fs::path& target, bool keep)
{
    m_target = target;
    struct stat status = {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (const int error = exists ? CheckTarget(target, status) : errno;
        exists ? error != 0 : error != ENOENT) {
        errno = error;
        return -1;
    }
    int descriptor = OpenBeside(exists ? &status : nullptr);
    const bool refused = errno == EACCES || errno == EPERM || errno == EROFS;
    if (descriptor < 0 && exists && refused) {
        m_temporary.clear();
        descriptor = memfd_create("radsel", MFD_CLOEXEC);
    }
    if (descriptor < 0) {
        return -1;
    }
    if (keep && !CopyContents(target, descriptor)) {
        return Fail(descriptor);
    }
    m_bOpen = true;
    return descriptor;
}

bool CFileReplacement::Commit(int descriptor)
{
    if (m_temporary.empty()) {
        if (!WriteInto(m_target, descriptor)) {
            return false;
        }
    } else {
        // Renamed while its lock is held, lest another writer take it for a leftover.
        if (fsync(descriptor) != 0 || rename(m_temporary.c_str(), m_target.c_str()) != 0) {
            return false;
        }
        SyncFolderOf(m_target);
    }
    m_temporary.clear();
    m_bOpen = false;
    return true;
}

void CFileReplacement::Drop() noexcept
{
    if (!m_temporary.empty()) {
        unlink(m_temporary.c_str());
        m_temporary.clear();
    }
    m_bOpen = false;
}
