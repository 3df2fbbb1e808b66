#include "platform/encoding.h"
#include "platform/utf8.h"

// Wide text where wchar_t has 16 bits: UTF-16 as it stands.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

char32_t TakeCharacter(const CString& text, std::size_t& position)
{
    const char32_t c = text[position++];
    if (IsHighSurrogate(c) && position < text.size() && IsLowSurrogate(text[position])) {
        return JoinSurrogates(c, text[position++]);
    }
    return c;
}

std::string Cp1252FromWide(const CString& text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        bytes += Cp1252FromCodePoint(TakeCharacter(text, i));
    }
    return bytes;
}

void AppendUtf16(CString& text, std::u16string_view units)
{
    text.append(units.begin(), units.end());
}

std::u16string Utf16FromWide(const CString& text)
{
    return {text.begin(), text.end()};
}

CString WideFromUtf8(std::string_view bytes)
{
    CString text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const char32_t c = TakeUtf8(bytes);
        if (c < kFirstBeyondUnits) {
            text += static_cast<wchar_t>(c);
        } else {
            text += static_cast<wchar_t>(HighSurrogateOf(c));
            text += static_cast<wchar_t>(LowSurrogateOf(c));
        }
    }
    return text;
}

std::string Utf8FromWide(const CString& text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        AppendUtf8(bytes, TakeCharacter(text, i));
    }
    return bytes;
}
