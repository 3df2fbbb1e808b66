#include "workbench/schedule/text_columns.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace workbench {

namespace {

constexpr wchar_t kGap[] = L"  ";
constexpr int kGapWidth = 2;

struct CharRange
{
    wchar_t first;
    wchar_t last;
};

constexpr CharRange kJoining[] = {{0x0300, 0x036f}, {0x1ab0, 0x1aff}, {0x1dc0, 0x1dff},
                                  {0x200b, 0x200f}, {0x20d0, 0x20ff}, {0xfe00, 0xfe0f},
                                  {0xfe20, 0xfe2f}};
constexpr CharRange kWide[] = {{0x1100, 0x115f}, {0x2e80, 0xa4cf},   {0xac00, 0xd7a3},
                               {0xf900, 0xfaff}, {0xfe30, 0xfe6f},   {0xff00, 0xff60},
                               {0xffe0, 0xffe6}, {0x1f300, 0x1faff}, {0x20000, 0x3fffd}};

template <std::size_t N>
bool IsAmong(wchar_t c, const CharRange (&ranges)[N])
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](const CharRange& range) { return c >= range.first && c <= range.last; });
}

int CharWidth(wchar_t c)
{
    if (IsAmong(c, kJoining)) {
        return 0;
    }
    return IsAmong(c, kWide) ? 2 : 1;
}

CString Printable(CString text)
{
    std::replace_if(
        text.begin(), text.end(), [](wchar_t c) { return c < L' ' || (c >= 0x7f && c < 0xa0); },
        L'?');
    return text;
}

CString WithoutEndBlanks(CString text)
{
    text.erase(text.find_last_not_of(L' ') + 1);
    return text;
}

} // namespace

int GetDisplayWidth(const CString& text)
{
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int sum, wchar_t c) { return sum + CharWidth(c); });
}

CString ShortenToWidth(const CString& text, int width)
{
    if (GetDisplayWidth(text) <= width) {
        return text;
    }
    CString result;
    int used = 1;
    for (const wchar_t c : text) {
        used += CharWidth(c);
        if (used > width) {
            break;
        }
        result += c;
    }
    return result + L'…';
}

CString PadToWidth(const CString& text, int width, bool right)
{
    const CString blanks(static_cast<std::size_t>(std::max(0, width - GetDisplayWidth(text))),
                         L' ');
    return right ? blanks + text : text + blanks;
}

void CTextColumns::AddRow(const std::vector<CString>& cells)
{
    Line line{Kind::cells, {}};
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        line.cells.push_back(ShortenToWidth(Printable(cells.at(i)), m_columns[i].nMaxWidth));
    }
    m_lines.push_back(std::move(line));
}

void CTextColumns::AddLine(const CString& text)
{
    m_lines.push_back({Kind::text, {Printable(text)}});
}

void CTextColumns::AddRule()
{
    m_lines.push_back({Kind::rule, {}});
}

std::vector<int> CTextColumns::GetWidths() const
{
    std::vector<int> widths;
    for (const CTextColumn& column : m_columns) {
        widths.push_back(GetDisplayWidth(column.strHeading));
    }
    for (const Line& line : m_lines) {
        if (line.kind == Kind::cells) {
            for (std::size_t i = 0; i < widths.size(); ++i) {
                widths[i] = std::max(widths[i], GetDisplayWidth(line.cells[i]));
            }
        }
    }
    return widths;
}

CString CTextColumns::Format() const
{
    const std::vector<int> widths = GetWidths();
    const int total = std::accumulate(widths.begin(), widths.end(), -kGapWidth,
                                      [](int sum, int width) { return sum + width + kGapWidth; });
    const CString rule = CString(static_cast<std::size_t>(std::max(total, 0)), L'-') + L'\n';

    const auto formatCells = [&](const auto& textOf) {
        CString text;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            text += (i == 0 ? L"" : kGap) + PadToWidth(textOf(i), widths[i], m_columns[i].bRight);
        }
        return WithoutEndBlanks(text) + L'\n';
    };

    CString result = formatCells([&](std::size_t i) { return m_columns[i].strHeading; }) + rule;
    for (const Line& line : m_lines) {
        switch (line.kind) {
        case Kind::cells:
            result += formatCells([&](std::size_t i) { return line.cells[i]; });
            break;
        case Kind::text:
            result += line.cells.front() + L'\n';
            break;
        case Kind::rule:
            result += rule;
            break;
        }
    }
    return result;
}

} // namespace workbench
