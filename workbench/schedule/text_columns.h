#pragma once

#include "platform/text.h"

#include <vector>

namespace workbench {

/// Places that a text takes in a terminal: accents that join a letter take none, wide characters
/// two.
int GetDisplayWidth(const CString& text);

/// The text, cut to end in "…" if it takes more than `width` places.
CString ShortenToWidth(const CString& text, int width);

/// The text with blanks in front (`right`) or behind, up to `width` places.
CString PadToWidth(const CString& text, int width, bool right = false);

struct CTextColumn
{
    CString strHeading;
    bool bRight = false;
    /// Texts wider than this are cut and end in "…".
    int nMaxWidth = 40;
};

/// A table of aligned columns. Control characters are shown as "?", so that no text can disturb the
/// terminal.
class CTextColumns
{
public:
    explicit CTextColumns(std::vector<CTextColumn> columns) : m_columns(std::move(columns)) {}

    /// A row with one cell a column.
    void AddRow(const std::vector<CString>& cells);

    /// A line over the whole width, which has no part in the alignment.
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

    std::vector<CTextColumn> m_columns;
    std::vector<Line> m_lines;
};

} // namespace workbench
