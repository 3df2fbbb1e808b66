#pragma once

#include "platform/text.h"
#include "workbench/schedule/columns.h"

#include <vector>

namespace workbench {

/// Places that a text takes in a terminal: accents that join a letter take none, wide characters
/// two.
int GetDisplayWidth(const CString& text);

/// The text, cut to end in "…" if it takes more than `width` places.
CString ShortenToWidth(const CString& text, int width);

/// The text with blanks in front (`right`) or behind, up to `width` places.
CString PadToWidth(const CString& text, int width, bool right = false);

/// Places of a wide terminal. No table takes more; texts beside them are broken.
inline constexpr int kMostPlaces = 160;

struct CTextColumn
{
    CString strHeading;
    bool bRight = false;
    /// Texts wider than this are cut and end in "…".
    int nMaxWidth = 40;
};

/// What a console shows of a list of columns.
template <class COLUMN>
std::vector<CTextColumn> TextColumnsOf(const std::vector<COLUMN>& columns,
                                       Output output = Output::console)
{
    std::vector<CTextColumn> shown;
    ForEachShown(columns, output, [&](const COLUMN& column, const CColumnLook& look) {
        shown.push_back({column.HeadingOf(look), look.bRight, static_cast<int>(look.breite)});
    });
    return shown;
}

/// A cell as a console shows it.
CString FormatTextCell(const CNumberForm& form, const CCell& cell);

/// A table of aligned columns. Where numbers make it wider than kMostPlaces, its widest texts give
/// way. Control characters are shown as "?", so that no text can disturb the
/// terminal.
class CTextColumns
{
public:
    explicit CTextColumns(std::vector<CTextColumn> columns) : m_columns(std::move(columns)) {}

    /// A row with one cell a column.
    void AddRow(const std::vector<CString>& cells);

    /// A line over the whole width, which has no part in the alignment. One of more than
    /// kMostPlaces goes on below, under its beginning.
    void AddLine(const CString& text);

    /// A line of dashes.
    void AddRule();

    /// Headings, a rule and all lines, each ended by a line feed and without blanks at its end.
    CString Format() const;

private:
    enum class Kind
    {
        cells,
        text,
        rule
    };
    struct Line
    {
        Kind kind = Kind::cells;
        std::vector<CString> cells;
    };

    std::vector<int> GetWidths() const;
    void Narrow(std::vector<int>& widths) const;

    std::vector<CTextColumn> m_columns;
    std::vector<Line> m_lines;
};

} // namespace workbench
