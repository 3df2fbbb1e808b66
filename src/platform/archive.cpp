#include "platform/archive.h"

#include "platform/encoding.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string_view>

// Values go to the archive as they lie in memory; the module runs on little-endian machines only.
static_assert(std::endian::native == std::endian::little);

namespace {

using Cause = CArchiveException::Cause;

constexpr std::array<char, 4> kMark = {'R', 'S', 'A', 'R'};
constexpr std::uint32_t kVersion = 1;

struct Frame
{
    std::array<char, 4> mark = kMark;
    std::uint32_t version = kVersion;
    std::uint64_t length = 0;
    std::uint64_t checkSum = 0;
};

/// FNV-1a: catches any single changed byte, which is all that is asked of it.
std::uint64_t CheckSum(const std::vector<std::uint8_t>& bytes)
{
    std::uint64_t sum = 0xCBF29CE484222325U;
    for (const std::uint8_t byte : bytes) {
        sum = (sum ^ byte) * 0x100000001B3U;
    }
    return sum;
}

} // namespace

CArchive::CArchive(CByteStream& stream, Mode mode) : m_stream(stream), m_mode(mode)
{
    if (mode == Mode::load) {
        LoadFrame();
    }
}

void CArchive::LoadFrame()
{
    Frame frame;
    if (m_stream.Read(&frame, sizeof frame) != sizeof frame) {
        throw CArchiveException(Cause::endOfFile);
    }
    if (frame.mark != kMark) {
        throw CArchiveException(Cause::damaged);
    }
    if (frame.version > kVersion) {
        throw CArchiveException(Cause::badSchema);
    }
    if (frame.length > m_stream.GetLength() - m_stream.GetPosition()) {
        throw CArchiveException(Cause::endOfFile);
    }
    m_payload.resize(static_cast<std::size_t>(frame.length));
    if (m_stream.Read(m_payload.data(), m_payload.size()) != m_payload.size()) {
        throw CArchiveException(Cause::endOfFile);
    }
    if (CheckSum(m_payload) != frame.checkSum) {
        throw CArchiveException(Cause::damaged);
    }
    m_limit = m_payload.size();
}

void CArchive::Close()
{
    if (!IsStoring()) {
        return;
    }
    Frame frame;
    frame.length = m_payload.size();
    frame.checkSum = CheckSum(m_payload);
    m_stream.Write(&frame, sizeof frame);
    m_stream.Write(m_payload.data(), m_payload.size());
    m_payload.clear();
}

void CArchive::Write(const void* bytes, std::size_t count)
{
    const auto* const first = static_cast<const std::uint8_t*>(bytes);
    m_payload.insert(m_payload.end(), first, first + count);
}

void CArchive::Read(void* bytes, std::size_t count)
{
    if (count > GetRemaining()) {
        throw CArchiveException(Cause::endOfFile);
    }
    if (count != 0) {
        std::memcpy(bytes, m_payload.data() + m_position, count);
        m_position += count;
    }
}

CArchive& CArchive::operator<<(bool value)
{
    return *this << static_cast<std::uint8_t>(value);
}

CArchive& CArchive::operator>>(bool& value)
{
    std::uint8_t byte = 0;
    *this >> byte;
    value = byte != 0;
    return *this;
}

CArchive& CArchive::operator<<(const CString& text)
{
    const std::u16string units = Utf16FromWide(text);
    WriteCount(units.size());
    Write(units.data(), units.size() * sizeof(char16_t));
    return *this;
}

CArchive& CArchive::operator>>(CString& text)
{
    std::u16string units(ReadCount(sizeof(char16_t)), u'\0');
    Read(units.data(), units.size() * sizeof(char16_t));
    text.clear();
    AppendUtf16(text, units);
    return *this;
}

void CArchive::WriteCount(std::size_t count)
{
    *this << static_cast<std::uint64_t>(count);
}

std::size_t CArchive::ReadCount(std::size_t elementSize)
{
    std::uint64_t count = 0;
    *this >> count;
    if (count > GetRemaining() / elementSize || count > 0x7FFFFFFFU) {
        throw CArchiveException(Cause::damaged);
    }
    return static_cast<std::size_t>(count);
}

void CArchive::WriteObject(CObject* object)
{
    const std::string_view name =
        object != nullptr ? object->GetRuntimeClass().m_lpszClassName : "";
    WriteCount(name.size());
    Write(name.data(), name.size());
    if (object == nullptr) {
        return;
    }
    *this << static_cast<std::uint32_t>(object->GetRuntimeClass().m_wSchema);
    const std::size_t lengthAt = m_payload.size();
    *this << std::uint64_t{0};
    object->Serialize(*this);
    const std::uint64_t length = m_payload.size() - lengthAt - sizeof length;
    std::memcpy(m_payload.data() + lengthAt, &length, sizeof length);
}

std::unique_ptr<CObject> CArchive::ReadObject(const CRuntimeClass& expected)
{
    std::string name(ReadCount(1), '\0');
    Read(name.data(), name.size());
    if (name.empty()) {
        return nullptr;
    }
    if (name != expected.m_lpszClassName) {
        throw CArchiveException(Cause::badClass);
    }
    std::uint32_t schema = 0;
    *this >> schema;
    if (schema > expected.m_wSchema) {
        throw CArchiveException(Cause::badSchema);
    }
    const std::size_t length = ReadCount(1);
    std::unique_ptr<CObject> object = expected.CreateObject();
    if (object == nullptr) {
        throw CArchiveException(Cause::badClass);
    }

    // The object may read its own bytes only, and has to read all of them.
    const std::size_t outerLimit = m_limit;
    const unsigned outerSchema = m_schema;
    m_limit = m_position + length;
    m_schema = schema;
    object->Serialize(*this);
    if (m_position != m_limit) {
        throw CArchiveException(Cause::damaged);
    }
    m_limit = outerLimit;
    m_schema = outerSchema;
    return object;
}
