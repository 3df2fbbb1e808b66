#pragma once

#include "uikit/grid.h"

#include <QFont>
#include <QFontMetricsF>
#include <QMargins>
#include <QPainter>

#include <array>
#include <string_view>
#include <unordered_map>

/// Measures and draws the contents of cells in one font.
class CGridPaint
{
public:
    explicit CGridPaint(const QFont& font);

    int RowHeight() const { return m_rowHeight; }

    /// Width that a cell needs to show all of its text; 0 for a cell that shows nothing.
    int CellWidth(const CUGCell& cell, GridCellKind kind);

    /// Contents of a cell on what is there, in the painter's pen. Text that does not fit ends in
    /// an ellipsis; line feeds break it.
    void DrawCell(QPainter& painter, const QRect& rect, const CUGCell& cell,
                  GridCellKind kind) const;

private:
    double NumericWidth(std::wstring_view text) const;
    double WidestLine(std::wstring_view text);
    double ShapedWidth(const CString& line);
    QMargins MarginsOf(const CUGCell& cell, GridCellKind kind) const;
    void DrawArrow(QPainter& painter, const QRect& rect, int flag) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    int m_rowHeight;
    /// Free room beside a text; that beside an arrow's holds the arrow.
    int m_padding;
    int m_arrowRoom;
    /// Widths of the characters that numbers consist of, by their codes; below 0 for all others.
    std::array<double, 128> m_numeric;
    /// Shaping a text costs more than all else in a rebuild, and rows mostly repeat their texts.
    std::unordered_map<CString, double> m_widths;
};
