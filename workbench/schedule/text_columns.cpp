#include "workbench/schedule/text_columns.h"

#include "platform/format.h"
#include "workbench/building/character.h"
#include "workbench/building/printable.h"
#include "workbench/building/user_text.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace workbench {

namespace {

constexpr wchar_t kGap[] = L"  ";
constexpr int kGapWidth = 2;

struct CharRange
{
    char32_t first;
    char32_t last;
};

constexpr CharRange kJoining[] = {{0x0300, 0x036f}, {0x1ab0, 0x1aff}, {0x1dc0, 0x1dff},
                                  {0x200b, 0x200f}, {0x20d0, 0x20ff}, {0xfe00, 0xfe0f},
                                  {0xfe20, 0xfe2f}};
constexpr CharRange kWide[] = {{0x1100, 0x115f}, {0x2e80, 0xa4cf},   {0xac00, 0xd7a3},
                               {0xf900, 0xfaff}, {0xfe30, 0xfe6f},   {0xff00, 0xff60},
                               {0xffe0, 0xffe6}, {0x1f300, 0x1faff}, {0x20000, 0x3fffd}};

template <std::size_t N>
bool IsAmong(char32_t c, const CharRange (&ranges)[N])
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [c](const CharRange& range) { return c >= range.first && c <= range.last; });
}

int CharWidth(char32_t c)
{
    if (IsAmong(c, kJoining)) {
        return 0;
    }
    return IsAmong(c, kWide) ? 2 : 1;
}

CString WithoutEndBlanks(CString text)
{
    text.erase(text.find_last_not_of(L' ') + 1);
    return text;
}

/// How much of the text the characters are that take no more than so many places on a screen.
std::size_t CountWithin(const CString& text, int width)
{
    std::size_t count = 0;
    while (count < text.size()) {
        const CCharacter character = CharacterAt(text, count);
        width -= CharWidth(character.code);
        if (width < 0) {
            break;
        }
        count += character.nPlaces;
    }
    return count;
}

/// How many characters of the text fit, up to the last blank among them if there is one behind
/// `start`.
std::size_t FittingCharacters(const CString& text, std::size_t start)
{
    const std::size_t count = CountWithin(text, kMostPlaces);
    if (count == text.size()) {
        return count;
    }
    const std::size_t blank = text.rfind(L' ', count);
    return blank == CString::npos || blank <= start ? count : blank;
}

/// The text in lines of at most kMostPlaces, all with the blanks at its beginning.
std::vector<CString> BrokenLines(CString text)
{
    constexpr std::size_t deepest = 20;
    const std::size_t start = std::min({text.find_first_not_of(L' '), text.size(), deepest});
    const CString indent = text.substr(0, start);
    std::vector<CString> lines;
    for (std::size_t count = FittingCharacters(text, start); count < text.size();
         count = FittingCharacters(text, start)) {
        lines.push_back(text.substr(0, count));
        text = indent + text.substr(std::min(text.find_first_not_of(L' ', count), text.size()));
    }
    lines.push_back(text);
    return lines;
}

int TotalOf(const std::vector<int>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), -kGapWidth,
                           [](int sum, int width) { return sum + width + kGapWidth; });
}

CString NumberText(const CNumberForm& form, double value)
{
    if (form.bHideZero && value <= 0.0) {
        return {};
    }
    const CString number = form.nDecimals == kAllDecimals ? FormatNumber(value)
                                                          : FormatDecimals(value, form.nDecimals);
    return form.bSign && value > 0.0 ? L"+" + number : number;
}

} // namespace

int GetDisplayWidth(const CString& text)
{
    int width = 0;
    for (std::size_t i = 0; i < text.size();) {
        const CCharacter character = CharacterAt(text, i);
        width += CharWidth(character.code);
        i += character.nPlaces;
    }
    return width;
}

CString ShortenToWidth(const CString& text, int width)
{
    if (GetDisplayWidth(text) <= width) {
        return text;
    }
    return text.substr(0, CountWithin(text, width - 1)) + L'…';
}

CString PadToWidth(const CString& text, int width, bool right)
{
    const CString blanks(static_cast<std::size_t>(std::max(0, width - GetDisplayWidth(text))),
                         L' ');
    return right ? blanks + text : text + blanks;
}

CString FormatTextCell(const CNumberForm& form, const CCell& cell)
{
    if (const auto* const number = std::get_if<double>(&cell)) {
        return NumberText(form, *number);
    }
    if (const auto* const size = std::get_if<CMeasures>(&cell)) {
        return FormatFixed(size->hoehe, 0) + L" x " + FormatFixed(size->tiefe, 0, 3) + L" x " +
               FormatFixed(size->laenge, 0, 4);
    }
    const auto* const text = std::get_if<CString>(&cell);
    return text ? *text : CString();
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
    for (const CString& line : BrokenLines(Printable(text))) {
        m_lines.push_back({Kind::text, {line}});
    }
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

void CTextColumns::Narrow(std::vector<int>& widths) const
{
    // Texts stay readable down to here.
    constexpr int least = 8;
    for (int excess = TotalOf(widths) - kMostPlaces; excess > 0; --excess) {
        int* widest = nullptr;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (!m_columns[i].bRight && widths[i] > (widest ? *widest : least)) {
                widest = &widths[i];
            }
        }
        if (!widest) {
            return;
        }
        --*widest;
    }
}

CString CTextColumns::Format() const
{
    std::vector<int> widths = GetWidths();
    Narrow(widths);
    const int total = TotalOf(widths);
    const CString rule = CString(static_cast<std::size_t>(std::max(total, 0)), L'-') + L'\n';

    const auto formatCells = [&](const auto& textOf) {
        CString text;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            text += (i == 0 ? L"" : kGap) + PadToWidth(ShortenToWidth(textOf(i), widths[i]),
                                                       widths[i], m_columns[i].bRight);
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
