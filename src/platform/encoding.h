#pragma once

#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#if __cplusplus >= 202002L
#include <span>
#endif

/// The character of one byte in code page 1252. The five bytes that the code page leaves undefined
/// become the control character of the same code, so that every byte survives a round trip.
wchar_t WideFromCp1252(std::uint8_t byte);

/// Appends the characters of `count` bytes of code page 1252 to `text`.
void AppendCp1252(CString& text, const std::uint8_t* bytes, std::size_t count);

#if __cplusplus >= 202002L
inline void AppendCp1252(CString& text, std::span<const std::uint8_t> bytes)
{
    AppendCp1252(text, bytes.data(), bytes.size());
}
#endif

/// The byte of a character in code page 1252, "?" for one that is not in it.
char Cp1252FromCodePoint(char32_t c);

/// The code page 1252 bytes of a text, one for each character.
std::string Cp1252FromWide(const CString& text);

/// Appends UTF-16 code units to `text`. A surrogate pair becomes the one code point that it stands
/// for; a surrogate without its partner stays as a character of its own, so that nothing is lost on
/// the way back. If the last character of `text` is a high surrogate and `units` begins with a low
/// one, the two join: text may arrive in pieces cut anywhere.
void AppendUtf16(CString& text, std::u16string_view units);

/// The UTF-16 code units of a text. A value beyond U+10FFFF becomes U+FFFD.
std::u16string Utf16FromWide(const CString& text);

/// UTF-8 to text and back, for file names, the environment and standard output. A byte that is no
/// valid UTF-8 becomes the private code 0xF700 + byte and is turned back to that byte on the way
/// out, so that any file name of the system survives the trip.
CString WideFromUtf8(std::string_view bytes);
std::string Utf8FromWide(const CString& text);
