#pragma once

#include "platform/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Single characters of UTF-8 and UTF-16, which the conversions of encoding.h are made of.

inline constexpr char32_t kReplacementCharacter = 0xFFFD;
inline constexpr char32_t kLargestCodePoint = 0x10FFFF;
inline constexpr char32_t kFirstBeyondUnits = 0x10000;
/// A byte that is no UTF-8 is the character of this code and the byte.
inline constexpr char32_t kBadByte = 0xF700;

constexpr bool IsHighSurrogate(char32_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}
constexpr bool IsLowSurrogate(char32_t c)
{
    return c >= 0xDC00 && c <= 0xDFFF;
}
constexpr bool IsBadByte(char32_t c)
{
    return c >= kBadByte + 0x80 && c <= kBadByte + 0xFF;
}

constexpr char32_t JoinSurrogates(char32_t high, char32_t low)
{
    return kFirstBeyondUnits + ((high - 0xD800) << 10) + (low - 0xDC00);
}
constexpr char32_t HighSurrogateOf(char32_t c)
{
    return 0xD800 + ((c - kFirstBeyondUnits) >> 10);
}
constexpr char32_t LowSurrogateOf(char32_t c)
{
    return 0xDC00 + ((c - kFirstBeyondUnits) & 0x3FF);
}

/// Takes the character at a position of a text, which moves behind it: by two places behind a pair
/// of surrogates, where wchar_t has no more than 16 bits.
char32_t TakeCharacter(const CString& text, std::size_t& position);

/// Appends the bytes of a code point; what is none becomes U+FFFD, and what stands for a bad byte
/// that byte.
inline void AppendUtf8(std::string& bytes, char32_t c)
{
    const auto append = [&bytes](char32_t value) { bytes += static_cast<char>(value); };
    if (c > kLargestCodePoint || IsHighSurrogate(c) || IsLowSurrogate(c)) {
        c = kReplacementCharacter;
    }
    if (c < 0x80) {
        append(c);
    } else if (IsBadByte(c)) {
        append(c - kBadByte);
    } else if (c < 0x800) {
        append(0xC0 | c >> 6);
        append(0x80 | (c & 0x3F));
    } else if (c < kFirstBeyondUnits) {
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
constexpr std::size_t Utf8SequenceLength(std::uint8_t first)
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
inline std::size_t DecodeUtf8(std::string_view bytes, char32_t& character)
{
    const auto at = [bytes](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::size_t length = Utf8SequenceLength(at(0));
    if (length == 0 || length > bytes.size()) {
        return 0;
    }
    constexpr std::array<std::uint32_t, 5> kFirstMask = {0, 0x7F, 0x1F, 0x0F, 0x07};
    constexpr std::array<std::uint32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    char32_t code = at(0) & kFirstMask[length];
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80) {
            return 0;
        }
        code = code << 6 | (at(i) & 0x3F);
    }
    if (code < kSmallest[length] || code > kLargestCodePoint || IsHighSurrogate(code) ||
        IsLowSurrogate(code) || IsBadByte(code)) {
        return 0;
    }
    character = code;
    return length;
}

/// Takes the character at the start of `bytes` off them, or their first byte as a bad one.
inline char32_t TakeUtf8(std::string_view& bytes)
{
    char32_t character = kBadByte + static_cast<std::uint8_t>(bytes[0]);
    const std::size_t used = DecodeUtf8(bytes, character);
    bytes.remove_prefix(used == 0 ? 1 : used);
    return character;
}
