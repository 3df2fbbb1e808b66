#pragma once

#include "platform/byte_stream.h"
#include "platform/file_replacement.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>

/// A file of bytes. Paths are texts in the sense of path.h. Failures raise CFileException.
///
/// A file opened with modeCreate is written beside its target and moved over it by Close(), so that
/// a crash, a full disk or an exception on the way leaves the old file or the new one, whole.
/// Without Close() such a file is dropped and the target stays as it was; every other file is
/// simply closed when the object dies. What a killed process leaves beside the target is used up
/// when the target is next written to. Owner, group and mode of the target stay; where the folder
/// lets no neighbour be made, the content goes into the target itself on Close(), and a crash in
/// the middle of that leaves a mixture.
class CFile : public CByteStream
{
public:
    /// The framework's values, which records and callers hand around as numbers. Only the access
    /// modes and the two create flags have an effect; modeCreate opens for reading and writing
    /// whatever the access mode. Sharing is left to the system.
    enum OpenFlags : unsigned
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000,
    };

    CFile() = default;

    /// Opens the file or throws.
    CFile(const CString& path, unsigned flags);

    ~CFile() override;

    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    /// Opens the file; false if that fails, and then the object stays closed and GetOpenError()
    /// tells why. modeCreate makes a missing file and empties an existing one, unless
    /// modeNoTruncate is given as well. A directory, or anything else that is no regular file, does
    /// not open; neither does a file for writing that carries no write permission at all, whoever
    /// asks.
    bool Open(const CString& path, unsigned flags);

    /// errno of the last Open() that gave false.
    int GetOpenError() const { return m_openError; }

    bool IsOpen() const { return m_descriptor >= 0; }

    std::size_t Read(void* buffer, std::size_t count) override;
    void Write(const void* buffer, std::size_t count) override;

    /// Absolute position in bytes; may lie behind the end.
    void Seek(std::uint64_t position);
    /// Returns the length, which is the new position.
    std::uint64_t SeekToEnd();
    std::uint64_t GetPosition() const override;
    std::uint64_t GetLength() const override;
    void SetLength(std::uint64_t length);

    /// Closes the file; for a created one this is the moment at which it becomes visible under its
    /// name. Throws if that fails, and then the target is as before. Closing twice does nothing.
    void Close();

    /// Closes without an error; a created file is dropped.
    void Abort() noexcept;

private:
    bool OpenExisting(unsigned flags);
    bool OpenCreated(unsigned flags);
    [[noreturn]] void Fail(int osError) const;
    /// The value, or the failure that one below 0 stands for.
    std::uint64_t Checked(std::int64_t value) const;

    int m_descriptor = -1;
    int m_openError = 0;
    CString m_path;
    std::filesystem::path m_target;
    CFileReplacement m_replacement;
};
