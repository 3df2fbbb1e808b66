#pragma once

#include "platform/encoding.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>

/// A piece of text inside a CLineBlock, in the width in which it is kept there: a view, which holds
/// as long as the block does. Copying one costs nothing, and so does cutting a piece out of it; the
/// text itself is made by Widen().
class CLineText
{
    enum class Width : std::size_t
    {
        cp1252,
        units,
        wide
    };

    /// Hands the characters to `take` in the type in which they are kept.
    template <class Take>
    decltype(auto) WithText(Take take) const
    {
        switch (m_width) {
        case Width::units:
            return take(static_cast<const char16_t*>(m_text));
        case Width::wide:
            return take(static_cast<const wchar_t*>(m_text));
        default:
            return take(static_cast<const std::uint8_t*>(m_text));
        }
    }

public:
    CLineText() : CLineText(nullptr, 0, Width::cp1252) {}
    /// Bytes of code page 1252.
    CLineText(const std::uint8_t* text, std::size_t size) : CLineText(text, size, Width::cp1252) {}
    /// One character a unit: two surrogates stay two characters.
    CLineText(const char16_t* text, std::size_t size) : CLineText(text, size, Width::units) {}
    CLineText(const wchar_t* text, std::size_t size) : CLineText(text, size, Width::wide) {}

    std::size_t GetSize() const { return m_size; }

    /// The character at a place, which must be less than the size.
    wchar_t operator[](std::size_t index) const
    {
        return WithText([index](const auto* text) { return Character(text[index]); });
    }

    /// The piece between two places, neither of them beyond the size.
    CLineText Part(std::size_t begin, std::size_t end) const
    {
        return WithText([=](const auto* text) { return CLineText(text + begin, end - begin); });
    }

    /// The first place from `from` on that holds one of two characters of ASCII; the size if there
    /// is none.
    std::size_t FindEither(char a, char b, std::size_t from) const;

    CString Widen() const;

private:
    // Both in one word, since a tree of a million nodes holds several views a node.
    static constexpr int kSizeBits = sizeof(std::size_t) * 8 - 2;
    static constexpr std::size_t kLargestSize = (std::size_t{1} << kSizeBits) - 1;

    CLineText(const void* text, std::size_t size, Width width)
        : m_text(text), m_size(size & kLargestSize), m_width(width)
    {
    }

    static wchar_t Character(std::uint8_t byte)
    {
        return byte < 0x80 ? static_cast<wchar_t>(byte) : WideFromCp1252(byte);
    }
    static wchar_t Character(char16_t unit) { return static_cast<wchar_t>(unit); }
    static wchar_t Character(wchar_t c) { return c; }

    const void* m_text;
    std::size_t m_size : kSizeBits;
    Width m_width : 2;
};
