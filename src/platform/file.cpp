#include "platform/file.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file_bytes.h"
#include "platform/path.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr unsigned kAccessMask = CFile::modeWrite | CFile::modeReadWrite;
constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;

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
    std::error_code error;
    m_target = FindFile(path, error);
    m_openError = error.value();
    if (error) {
        return false;
    }
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
    errno = ENOENT;
    m_descriptor =
        m_target.has_filename() ? m_replacement.Begin(m_target, (flags & modeNoTruncate) != 0) : -1;
    m_openError = IsOpen() ? 0 : errno;
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
    if (m_replacement.IsOpen()) {
        if (!m_replacement.Commit(m_descriptor)) {
            const int error = errno;
            Abort();
            Fail(error);
        }
        close(std::exchange(m_descriptor, -1));
    } else if (close(std::exchange(m_descriptor, -1)) != 0) {
        Fail(errno);
    }
}

void CFile::Abort() noexcept
{
    m_replacement.Drop();
    if (IsOpen()) {
        close(std::exchange(m_descriptor, -1));
    }
}
