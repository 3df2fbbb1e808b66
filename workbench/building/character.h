#pragma once

#include "platform/text.h"

#include <cstddef>

namespace workbench {

/// A character of a text.
struct CCharacter
{
    char32_t code = 0;
    /// The places of the text that it takes: two for a pair of surrogates, where a place has no
    /// more than 16 bits.
    std::size_t nPlaces = 1;
};

/// The character that begins at a place of the text.
inline CCharacter CharacterAt(const CString& text, std::size_t place)
{
    const auto isWithin = [](char32_t c, char32_t first) {
        return c >= first && c < first + 0x400;
    };
    const auto first = static_cast<char32_t>(text[place]);
    if (sizeof(wchar_t) == sizeof(char16_t) && isWithin(first, 0xd800) && place + 1 < text.size()) {
        const auto second = static_cast<char32_t>(text[place + 1]);
        if (isWithin(second, 0xdc00)) {
            return {0x10000 + ((first - 0xd800) << 10) + (second - 0xdc00), 2};
        }
    }
    return {first, 1};
}

/// Characters of a text, on every system the same number.
inline std::size_t LengthOf(const CString& text)
{
    std::size_t length = 0;
    for (std::size_t i = 0; i < text.size(); i += CharacterAt(text, i).nPlaces) {
        ++length;
    }
    return length;
}

} // namespace workbench
