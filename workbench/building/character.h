#pragma once

#include "platform/text.h"
#include "platform/utf8.h"

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
    std::size_t behind = place;
    const char32_t code = TakeCharacter(text, behind);
    return {code, behind - place};
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
