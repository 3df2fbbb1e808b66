#include "platform/encoding.h"
#include "platform/utf8.h"

#include <algorithm>

// Wide text where wchar_t has 32 bits: one code point each.
static_assert(sizeof(wchar_t) == sizeof(char32_t));

char32_t TakeCharacter(const CString& text, std::size_t& position)
{
    return static_cast<char32_t>(text[position++]);
}

std::string Cp1252FromWide(const CString& text)
{
    std::string bytes(text.size(), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](wchar_t c) { return Cp1252FromCodePoint(static_cast<char32_t>(c)); });
    return bytes;
}

void AppendUtf16(CString& text, std::u16string_view units)
{
    text.reserve(text.size() + units.size());
    for (const char16_t unit : units) {
        if (IsLowSurrogate(unit) && !text.empty() &&
            IsHighSurrogate(static_cast<char32_t>(text.back()))) {
            text.back() =
                static_cast<wchar_t>(JoinSurrogates(static_cast<char32_t>(text.back()), unit));
        } else {
            text += static_cast<wchar_t>(unit);
        }
    }
}

std::u16string Utf16FromWide(const CString& text)
{
    std::u16string units;
    units.reserve(text.size());
    for (const wchar_t wide : text) {
        const auto c = static_cast<char32_t>(wide);
        if (c > kLargestCodePoint) {
            units += static_cast<char16_t>(kReplacementCharacter);
        } else if (c < kFirstBeyondUnits) {
            units += static_cast<char16_t>(c);
        } else {
            units += static_cast<char16_t>(HighSurrogateOf(c));
            units += static_cast<char16_t>(LowSurrogateOf(c));
        }
    }
    return units;
}

CString WideFromUtf8(std::string_view bytes)
{
    CString text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        text += static_cast<wchar_t>(TakeUtf8(bytes));
    }
    return text;
}

std::string Utf8FromWide(const CString& text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t c : text) {
        AppendUtf8(bytes, static_cast<char32_t>(c));
    }
    return bytes;
}
