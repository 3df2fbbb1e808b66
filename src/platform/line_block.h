#pragma once

#include "platform/array.h"
#include "platform/line_text.h"

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

/// The lines of a text file in one block, as narrow as they are: catalogues have a million lines of
/// plain letters, and as many separate wide texts would take several times what stands in them.
class CLineBlock
{
public:
    CLineBlock() = default;

    /// The same lines, in the narrowest characters that hold them all. Raises std::length_error if
    /// they have more than 4,294,967,295 of them.
    explicit CLineBlock(const CStringArray& lines);

    /// Lines of code page 1252 that stand one behind the other with nothing between them. `ends`
    /// tells where each one ends, in rising order, and the last end is within `text`.
    CLineBlock(std::vector<std::uint8_t> text, std::vector<std::uint32_t> ends);

    int GetCount() const { return static_cast<int>(m_ends.size()); }

    /// A line, which holds as long as the block does. Raises CInvalidArgException outside of 0 to
    /// count - 1.
    CLineText GetLine(int index) const;

    /// Replaces `lines` by these.
    void CopyTo(CStringArray& lines) const;

private:
    std::variant<std::vector<std::uint8_t>, std::vector<char16_t>, std::vector<wchar_t>> m_text;
    std::vector<std::uint32_t> m_ends;
};
