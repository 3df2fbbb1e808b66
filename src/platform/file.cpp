#include "platform/file.h"

#include "platform/descriptor.h"
#include "platform/exception.h"
#include "platform/file_bytes.h"
#include "platform/path.h"
#include "platform/system_error.h"

#include <cerrno>
#include <utility>

namespace {

constexpr unsigned kAccessMask = CFile::modeWrite | CFile::modeReadWrite;

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
    m_openError = ErrnoOf(error);
    if (error) {
        return false;
    }
    return (flags & modeCreate) != 0 ? OpenCreated(flags) : OpenExisting(flags);
}

bool CFile::OpenExisting(unsigned flags)
{
    FileAccess access = FileAccess::read;
    if ((flags & kAccessMask) != 0) {
        access = (flags & modeReadWrite) != 0 ? FileAccess::readWrite : FileAccess::write;
    }
    m_descriptor = OpenDescriptor(m_target, access);
    m_openError = IsOpen() ? 0 : errno;
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
    return static_cast<std::size_t>(
        Checked(ReadUpTo(m_descriptor, static_cast<char*>(buffer), count)));
}

void CFile::Write(const void* buffer, std::size_t count)
{
    if (!WriteAll(m_descriptor, static_cast<const char*>(buffer), count)) {
        Fail(errno);
    }
}

void CFile::Seek(std::uint64_t position)
{
    static_cast<void>(Checked(SeekDescriptor(m_descriptor, static_cast<std::int64_t>(position))));
}

std::uint64_t CFile::Checked(std::int64_t value) const
{
    if (value < 0) {
        Fail(errno);
    }
    return static_cast<std::uint64_t>(value);
}

std::uint64_t CFile::SeekToEnd()
{
    return Checked(SeekDescriptorToEnd(m_descriptor));
}

std::uint64_t CFile::GetPosition() const
{
    return Checked(PositionOfDescriptor(m_descriptor));
}

std::uint64_t CFile::GetLength() const
{
    return Checked(LengthOfDescriptor(m_descriptor));
}

void CFile::SetLength(std::uint64_t length)
{
    if (!SetLengthOfDescriptor(m_descriptor, static_cast<std::int64_t>(length))) {
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
        CloseDescriptor(std::exchange(m_descriptor, -1));
    } else if (!CloseDescriptor(std::exchange(m_descriptor, -1))) {
        Fail(errno);
    }
}

void CFile::Abort() noexcept
{
    m_replacement.Drop();
    if (IsOpen()) {
        CloseDescriptor(std::exchange(m_descriptor, -1));
    }
}
