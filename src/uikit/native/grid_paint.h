#pragma once

#include "uikit/native/grid_model.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyledItemDelegate>

#include <array>
#include <functional>
#include <string_view>
#include <unordered_map>

/// Measures and paints the cells of a grid in one font.
class CGridPaint : public QStyledItemDelegate
{
public:
    /// The cells must outlive the object.
    CGridPaint(const CGridModel& cells, const QFont& font);

    void SetFont(const QFont& font);
    int RowHeight() const { return m_rowHeight; }

    /// Colour behind the cells, and whether that of the current row stands out.
    void SetBack(const QColor& back, bool highlight);

    /// Width that a cell needs to show all of its text; 0 for a cell that shows nothing.
    int CellWidth(const CUGCell& cell);

    /// Contents of a cell on what is there, in the painter's pen. Text that does not fit ends in
    /// an ellipsis; line feeds break it.
    void DrawCell(QPainter& painter, const QRect& rect, int column, int row) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    /// Finds a text without a copy of it.
    struct TextHash : std::hash<std::wstring_view>
    {
        using is_transparent = void;
    };

    double NumericWidth(std::wstring_view text) const;
    double WidestLine(std::wstring_view text);
    double ShapedWidth(std::wstring_view line);
    QMargins MarginsOf(const CUGCell& cell) const;
    void DrawArrow(QPainter& painter, const QRect& rect, int flag) const;

    const CGridModel& m_cells;
    QFont m_font;
    QFontMetricsF m_metrics;
    int m_rowHeight = 0;
    /// Free room beside a text; that beside an arrow's holds the arrow.
    int m_padding = 0;
    int m_arrowRoom = 0;
    QColor m_back;
    bool m_highlight = true;
    /// Widths of the characters that numbers consist of, by their codes; no number for all others.
    std::array<double, 128> m_numeric;
    /// Shaping a text costs more than all else in a rebuild, and rows mostly repeat their texts.
    std::unordered_map<CString, double, TextHash, std::equal_to<>> m_widths;
};
