#include "platform/encoding.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<wchar_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr wchar_t kReplacement = 0xFFFD;
constexpr wchar_t kLargestCodePoint = 0x10FFFF;
constexpr wchar_t kBadByte = 0xF700;

bool IsHighSurrogate(wchar_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(wchar_t c)
{
    return c >= 0xDC00 && c <= 0xDFFF;
}
bool IsBadByte(wchar_t c)
{
    return c >= kBadByte + 0x80 && c <= kBadByte + 0xFF;
}

char Cp1252Byte(wchar_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    const auto* const found = std::find(kCp1252High.begin(), kCp1252High.end(), c);
    return found == kCp1252High.end() ? '?'
                                      : static_cast<char>(0x80 + (found - kCp1252High.begin()));
}

void AppendUtf8(std::string& bytes, std::uint32_t c)
{
    const auto append = [&bytes](std::uint32_t value) { bytes += static_cast<char>(value); };
    if (c < 0x80) {
        append(c);
    } else if (c < 0x800) {
        append(0xC0 | c >> 6);
        append(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        append(0xE0 | c >> 12);
        append(0x80 | (c >> 6 & 0x3F));
        append(0x80 | (c & 0x3F));
    } else {
        append(0xF0 | c >> 18);
        append(0x80 | (c >> 12 & 0x3F));
        append(0x80 | (c >> 6 & 0x3F));
        append(0x80 | (c & 0x3F));
    }
}

/// Length of the sequence that a first byte announces, 0 if it can be none.
std::size_t SequenceLength(std::uint8_t first)
{
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return 2;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 3;
    }
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

/// Decodes the character at the start of `bytes`; 0 bytes used if it is no valid UTF-8. Surrogates,
/// overlong forms and the codes that stand for bad bytes count as invalid, so that every byte
/// sequence comes back unchanged.
std::size_t DecodeUtf8(std::string_view bytes, wchar_t& character)
{
    const auto at = [bytes](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::size_t length = SequenceLength(at(0));
    if (length == 0 || length > bytes.size()) {
        return 0;
    }
    constexpr std::array<std::uint32_t, 5> kFirstMask = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr std::array<std::uint32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    std::uint32_t code = at(0) & kFirstMask[length];
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80) {
            return 0;
        }
        code = code << 6 | (at(i) & 0x3F);
    }
    const auto c = static_cast<wchar_t>(code);
    if (code < kSmallest[length] || c > kLargestCodePoint || IsHighSurrogate(c) ||
        IsLowSurrogate(c) || IsBadByte(c)) {
        return 0;
    }
    character = c;
    return length;
}

} // namespace

wchar_t WideFromCp1252(std::uint8_t byte)
{
    return byte >= 0x80 && byte < 0xA0 ? kCp1252High[byte - 0x80U] : static_cast<wchar_t>(byte);
}

void AppendCp1252(CString& text, const std::uint8_t* bytes, std::size_t count)
{
    const std::size_t start = text.size();
    text.resize(start + count);
    std::transform(bytes, bytes + count, text.begin() + static_cast<std::ptrdiff_t>(start),
                   WideFromCp1252);
}

std::string Cp1252FromWide(const CString& text)
{
    std::string bytes(text.size(), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(), Cp1252Byte);
    return bytes;
}

void AppendUtf16(CString& text, std::u16string_view units)
{
    text.reserve(text.size() + units.size());
    for (const char16_t unit : units) {
        const auto c = static_cast<wchar_t>(unit);
        if (IsLowSurrogate(c) && !text.empty() && IsHighSurrogate(text.back())) {
            text.back() = 0x10000 + ((text.back() - 0xD800) << 10) + (c - 0xDC00);
        } else {
            text += c;
        }
    }
}

std::u16string Utf16FromWide(const CString& text)
{
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t c : text) {
        if (c < 0 || c > kLargestCodePoint) {
            units += static_cast<char16_t>(kReplacement);
        } else if (c < 0x10000) {
            units += static_cast<char16_t>(c);
        } else {
            units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return units;
}

CString WideFromUtf8(std::string_view bytes)
{
    CString text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        wchar_t character = kBadByte + static_cast<std::uint8_t>(bytes[0]);
        const std::size_t used = std::max<std::size_t>(DecodeUtf8(bytes, character), 1);
        text += character;
        bytes.remove_prefix(used);
    }
    return text;
}

std::string Utf8FromWide(const CString& text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t c : text) {
        if (IsBadByte(c)) {
            bytes += static_cast<char>(c - kBadByte);
        } else if (c < 0 || c > kLargestCodePoint || IsHighSurrogate(c) || IsLowSurrogate(c)) {
            AppendUtf8(bytes, kReplacement);
        } else {
            AppendUtf8(bytes, static_cast<std::uint32_t>(c));
        }
    }
    return bytes;
}
