#include "platform/file.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/path.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kAccessMask = CFile::modeWrite | CFile::modeReadWrite;
constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kPermissionBits = 07777;

/// Follows links to the file itself, so that replacing it leaves the link in place. A link to
/// nothing is replaced by the file.
fs::path FollowLinks(const fs::path& path)
{
    std::error_code error;
    const fs::path real = fs::weakly_canonical(path, error);
    return error ? path : real;
}

/// Permission bits of a new file under the process's mask.
mode_t DefaultMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// 0 if the target may be replaced, else the error. `mode` receives the permission bits to keep.
int CheckTarget(const fs::path& target, mode_t& mode)
{
    struct stat status = {};
    if (stat(target.c_str(), &status) != 0) {
        mode = DefaultMode();
        return errno == ENOENT ? 0 : errno;
    }
    if (!S_ISREG(status.st_mode)) {
        return S_ISDIR(status.st_mode) ? EISDIR : EACCES;
    }
    mode = status.st_mode & kPermissionBits;
    const bool writable =
        (mode & kAnyWriteBit) != 0 && faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) == 0;
    return writable ? 0 : EACCES;
}

bool WriteAll(int descriptor, const char* bytes, std::size_t count)
{
    while (count != 0) {
        const ssize_t written = write(descriptor, bytes, count);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
    return true;
}

/// The file beside a target that its next content is written to.
fs::path TemporaryOf(const fs::path& target)
{
    return target.parent_path() / ("." + target.filename().native() + ".radsel-tmp");
}

/// True if the open file is nobody else's: locked now, still the one of that name, and no way to
/// another file's content.
bool TakeTemporary(int descriptor, const char* name)
{
    struct stat opened = {};
    struct stat named = {};
    return flock(descriptor, LOCK_EX | LOCK_NB) == 0 && fstat(descriptor, &opened) == 0 &&
           lstat(name, &named) == 0 && opened.st_ino == named.st_ino &&
           opened.st_dev == named.st_dev && S_ISREG(opened.st_mode) && opened.st_nlink == 1 &&
           opened.st_uid == geteuid() && ftruncate(descriptor, 0) == 0;
}

/// Opens an empty temporary file and sets its name; below 0 with errno set if that fails. A target
/// has one name as long as nobody else is writing to it, so that what a killed process has left is
/// used up by the next one instead of piling up.
int OpenTemporary(const fs::path& target, fs::path& temporary)
{
    temporary = TemporaryOf(target);
    const int descriptor =
        open(temporary.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (descriptor >= 0) {
        if (TakeTemporary(descriptor, temporary.c_str())) {
            return descriptor;
        }
        close(descriptor);
    }
    std::string name = (target.parent_path() / ".radsel-XXXXXX.tmp").native();
    const int other = mkostemps(name.data(), 4, O_CLOEXEC);
    temporary = other >= 0 ? name : "";
    return other;
}

/// Fills a created file with what its target holds; false with errno set if that fails.
bool CopyContents(const fs::path& from, int to)
{
    const int source = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (source < 0) {
        return errno == ENOENT;
    }
    std::array<char, 65536> buffer;
    ssize_t count = 0;
    bool ok = true;
    while (ok && (count = read(source, buffer.data(), buffer.size())) > 0) {
        ok = WriteAll(to, buffer.data(), static_cast<std::size_t>(count));
    }
    const int error = errno;
    close(source);
    errno = error;
    return ok && count == 0 && lseek(to, 0, SEEK_SET) == 0;
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

} // namespace

CFile::CFile(const CString& path, unsigned flags)
{
    if (!Open(path, flags)) {
        throw CFileException::FromErrno(m_openError, path);
    }
}

CFile::~CFile()
{
    Abort();
}

bool CFile::Open(const CString& path, unsigned flags)
{
    Abort();
    m_path = path;
    m_openError = 0;
    m_target = FollowLinks(ResolvePath(path));
    return (flags & modeCreate) != 0 ? OpenCreated(flags) : OpenExisting(flags);
}

bool CFile::OpenExisting(unsigned flags)
{
    int access = O_RDONLY;
    if ((flags & kAccessMask) != 0) {
        access = (flags & modeReadWrite) != 0 ? O_RDWR : O_WRONLY;
    }
    struct stat status = {};
    if (stat(m_target.c_str(), &status) != 0) {
        m_openError = errno;
    } else if (!S_ISREG(status.st_mode)) {
        m_openError = S_ISDIR(status.st_mode) ? EISDIR : EACCES;
    } else if (access != O_RDONLY && (status.st_mode & kAnyWriteBit) == 0) {
        m_openError = EACCES;
    } else {
        m_descriptor = open(m_target.c_str(), access | O_CLOEXEC);
        m_openError = IsOpen() ? 0 : errno;
    }
    return IsOpen();
}

bool CFile::OpenCreated(unsigned flags)
{
    mode_t mode = 0;
    m_openError = m_target.has_filename() ? CheckTarget(m_target, mode) : ENOENT;
    if (m_openError != 0) {
        return false;
    }
    m_descriptor = OpenTemporary(m_target, m_temporary);
    if (!IsOpen()) {
        m_openError = errno;
        return false;
    }
    const bool keep = (flags & modeNoTruncate) != 0;
    if (fchmod(m_descriptor, mode) != 0 || (keep && !CopyContents(m_target, m_descriptor))) {
        m_openError = errno;
        Abort();
    }
    return IsOpen();
}

void CFile::Fail(int osError) const
{
    throw CFileException::FromErrno(osError, m_path);
}

std::size_t CFile::Read(void* buffer, std::size_t count)
{
    auto* bytes = static_cast<char*>(buffer);
    std::size_t total = 0;
    while (total < count) {
        const ssize_t got = read(m_descriptor, bytes + total, count - total);
        if (got == 0) {
            break;
        }
        if (got > 0) {
            total += static_cast<std::size_t>(got);
        } else if (errno != EINTR) {
            Fail(errno);
        }
    }
    return total;
}

void CFile::Write(const void* buffer, std::size_t count)
{
    if (!WriteAll(m_descriptor, static_cast<const char*>(buffer), count)) {
        Fail(errno);
    }
}

void CFile::Seek(std::uint64_t position)
{
    if (lseek(m_descriptor, static_cast<off_t>(position), SEEK_SET) < 0) {
        Fail(errno);
    }
}

std::uint64_t CFile::SeekToEnd()
{
    const off_t end = lseek(m_descriptor, 0, SEEK_END);
    if (end < 0) {
        Fail(errno);
    }
    return static_cast<std::uint64_t>(end);
}

std::uint64_t CFile::GetPosition() const
{
    const off_t position = lseek(m_descriptor, 0, SEEK_CUR);
    if (position < 0) {
        Fail(errno);
    }
    return static_cast<std::uint64_t>(position);
}

std::uint64_t CFile::GetLength() const
{
    struct stat status = {};
    if (fstat(m_descriptor, &status) != 0) {
        Fail(errno);
    }
    return static_cast<std::uint64_t>(status.st_size);
}

void CFile::SetLength(std::uint64_t length)
{
    if (ftruncate(m_descriptor, static_cast<off_t>(length)) != 0) {
        Fail(errno);
    }
}

void CFile::Close()
{
    if (!IsOpen()) {
        return;
    }
    if (m_temporary.empty()) {
        if (close(std::exchange(m_descriptor, -1)) != 0) {
            Fail(errno);
        }
        return;
    }
    // Renamed while its lock is held, lest another writer take it for a leftover.
    if (fsync(m_descriptor) != 0 || rename(m_temporary.c_str(), m_target.c_str()) != 0) {
        const int error = errno;
        Abort();
        Fail(error);
    }
    m_temporary.clear();
    close(std::exchange(m_descriptor, -1));
    SyncFolderOf(m_target);
}

void CFile::Abort() noexcept
{
    if (!m_temporary.empty()) {
        unlink(m_temporary.c_str());
        m_temporary.clear();
    }
    if (IsOpen()) {
        close(std::exchange(m_descriptor, -1));
    }
}
