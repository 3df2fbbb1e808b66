#include "platform/line_block.h"

#include "platform/exception.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace {

/// All bits that the characters of the lines have.
std::uint32_t BitsOf(const CStringArray& lines)
{
    std::uint32_t bits = 0;
    for (const CString& line : lines) {
        for (const wchar_t c : line) {
            bits |= static_cast<std::uint32_t>(c);
        }
    }
    return bits;
}

template <class Char>
void Fill(std::vector<Char>& text, const CStringArray& lines, std::size_t length)
{
    text.resize(length);
    auto place = text.begin();
    for (const CString& line : lines) {
        place = std::transform(line.begin(), line.end(), place,
                               [](wchar_t c) { return static_cast<Char>(c); });
    }
}

} // namespace

CLineBlock::CLineBlock(const CStringArray& lines)
{
    constexpr std::uint32_t kAscii = 0x7F;
    constexpr std::uint32_t kOneUnit = 0xFFFF;
    const std::uint32_t bits = BitsOf(lines);
    if ((bits & ~kOneUnit) != 0) {
        m_text.emplace<std::vector<wchar_t>>();
    } else if ((bits & ~kAscii) != 0) {
        m_text.emplace<std::vector<char16_t>>();
    }
    std::size_t length = 0;
    m_ends.reserve(static_cast<std::size_t>(lines.GetSize()));
    for (const CString& line : lines) {
        length += line.size();
        if (length > std::numeric_limits<std::uint32_t>::max()) {
            throw std::length_error("more text than a block of lines holds");
        }
        m_ends.push_back(static_cast<std::uint32_t>(length));
    }
    std::visit([&](auto& text) { Fill(text, lines, length); }, m_text);
}

CLineBlock::CLineBlock(std::vector<std::uint8_t> text, std::vector<std::uint32_t> ends)
    : m_text(std::move(text)), m_ends(std::move(ends))
{
}

CLineText CLineBlock::GetLine(int index) const
{
    if (index < 0 || index >= GetCount()) {
        throw CInvalidArgException();
    }
    const auto place = static_cast<std::size_t>(index);
    const std::size_t begin = place == 0 ? 0 : m_ends[place - 1];
    return std::visit(
        [&](const auto& text) { return CLineText(text.data() + begin, m_ends[place] - begin); },
        m_text);
}

void CLineBlock::CopyTo(CStringArray& lines) const
{
    lines.RemoveAll();
    lines.Reserve(GetCount());
    for (int i = 0; i < GetCount(); ++i) {
        lines.AddMoved(GetLine(i).Widen());
    }
}
