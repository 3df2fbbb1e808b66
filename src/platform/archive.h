#pragma once

#include "platform/array.h"
#include "platform/byte_stream.h"
#include "platform/object.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <type_traits>
#include <vector>

/// Typed reading and writing of a byte stream.
///
/// An archive is a frame (mark, version, payload length, check sum) around its payload, all numbers
/// little-endian. A loading archive checks the frame before it hands out a single value, so damage
/// anywhere in the payload is found at once; every later read is checked against the payload's end.
/// All failures raise CArchiveException.
class CArchive
{
public:
    enum class Mode
    {
        store,
        load
    };

    /// A storing archive collects its payload and writes it on Close(). A loading one reads and
    /// checks the whole frame here. The stream must outlive the archive.
    CArchive(CByteStream& stream, Mode mode);

    /// A storing archive that was not closed leaves the stream untouched.
    ~CArchive() = default;

    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    bool IsStoring() const { return m_mode == Mode::store; }

    /// Writes the frame of a storing archive to the stream; does nothing on a loading one.
    void Close();

    /// Raw bytes of the payload. Reading past its end raises endOfFile and takes nothing.
    void Write(const void* bytes, std::size_t count);
    void Read(void* bytes, std::size_t count);

    /// Bytes of a loading archive that are still unread.
    std::size_t GetRemaining() const { return m_limit - m_position; }

    template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
    CArchive& operator<<(T value)
    {
        static_assert(sizeof(T) <= 8);
        Write(&value, sizeof value);
        return *this;
    }

    template <class T, std::enable_if_t<std::is_arithmetic_v<T>, int> = 0>
    CArchive& operator>>(T& value)
    {
        Read(&value, sizeof value);
        return *this;
    }

    /// A flag is one byte; any byte but 0 reads as true.
    CArchive& operator<<(bool value);
    CArchive& operator>>(bool& value);

    /// A text is its count of UTF-16 code units and the units.
    CArchive& operator<<(const CString& text);
    CArchive& operator>>(CString& text);

    /// Count of elements that follow, each of at least `elementSize` bytes. Reading a count that
    /// the rest of the payload cannot hold raises `damaged`, before anyone allocates for it.
    void WriteCount(std::size_t count);
    std::size_t ReadCount(std::size_t elementSize);

    /// An object with its class name, version and length. Null may be written.
    void WriteObject(CObject* object);

    /// Reads an object of exactly the class given; null where null was written. Another class
    /// raises badClass, a later version badSchema, a length that does not fit the object `damaged`.
    std::unique_ptr<CObject> ReadObject(const CRuntimeClass& expected);

    /// Inside Serialize of a loading archive: the version in which the object was stored.
    unsigned GetObjectSchema() const { return m_schema; }

private:
    void LoadFrame();

    CByteStream& m_stream;
    Mode m_mode;
    std::vector<std::uint8_t> m_payload;
    std::size_t m_position = 0;
    std::size_t m_limit = 0;
    unsigned m_schema = 0;
};

/// Growing array of plain elements whose archive form is the element count followed by the
/// elements' raw bytes.
template <class T>
class OCArray : public CArray<T, T>
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    /// Writes the elements, or replaces them by those of a loading archive.
    void Serialize(CArchive& archive)
    {
        if (archive.IsStoring()) {
            archive.WriteCount(static_cast<std::size_t>(this->GetSize()));
            archive.Write(this->GetData(), ByteSize());
            return;
        }
        const std::size_t count = archive.ReadCount(sizeof(T));
        this->SetSize(static_cast<int>(count));
        archive.Read(this->GetData(), ByteSize());
    }

private:
    std::size_t ByteSize() const { return static_cast<std::size_t>(this->GetSize()) * sizeof(T); }
};
