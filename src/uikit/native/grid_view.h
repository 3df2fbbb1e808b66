#pragma once

#include "uikit/grid.h"
#include "uikit/native/grid_model.h"
#include "uikit/native/grid_paint.h"

#include <QTableView>

#include <map>

class CGridHeader;
class QKeyEvent;

inline constexpr int kGridMinColumnWidth = 3;

/// The toolkit's side of a grid: keys, mouse, current cell and painting, and the way of their
/// events into the grid's callbacks.
class CGridView : public QTableView
{
public:
    CGridView(CUGCtrl& grid, CUGCtrl::Guard guard, QWidget* parent);

    /// From now on nothing is raised.
    void Detach() { m_grid = nullptr; }

    CGridModel& Model() { return m_model; }
    CGridHeader& TopHeading() { return *m_top; }
    CGridHeader& SideHeading() { return *m_side; }

    /// Runs a callback inside the guard.
    void Raise(const std::function<void(CUGCtrl&)>& callback);
    /// The same for one that answers; `fallback` is the answer where it threw.
    template <class Answer, class Callback>
    Answer Ask(Answer fallback, Callback callback)
    {
        Answer answer = fallback;
        Raise([&](CUGCtrl& grid) { answer = callback(grid); });
        return answer;
    }

    void SetColumnCount(int count);
    bool DeleteRow(int row);
    /// The current row may have other contents under its number now.
    void RowsSorted() { m_sorted = m_model.Rows().GetRowCount() > 0; }
    void SetRedraw(bool redraw);
    int AddCellType(GridCellKind kind);
    void SetHeadingRows(int rows);
    void SetHeadingHeight(int height);
    void SetCurrentCellMode(int mode);
    void SetRowHighlight(bool wholeRow);
    void EnableToolTips(bool enable) { m_toolTips = enable; }

    void GotoCell(int column, int row);
    int CurrentColumn() const { return m_column; }
    int CurrentRow() const { return m_row; }

    int ColumnWidth(int column) const;
    void SetColumnWidth(int column, int width);
    void BestFit(int first, int count, int rows, bool headings);

    QColor BackColor(GridSection section);
    void DrawCell(QPainter& painter, const QRect& rect, int column, int row);
    /// A cell at a place on the screen; the tip stays while the mouse is inside `rect` of `on`.
    struct TipPlace
    {
        QPoint screen;
        QWidget* on;
        QRect rect;
    };
    void ShowToolTip(const TipPlace& place, int column, int row, GridSection section);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    friend class CGridDelegate;

    GridCellKind KindOf(const CUGCell& cell) const;
    void ApplyWidths();
    void FontChanged();
    void HighlightCurrent();
    void ShowCurrentSoon();
    void Choose(int column, int row);
    bool MoveByKey(GridKey key);
    void PressCell(int column, int row);
    void RaiseClick(const QMouseEvent& event, bool down);
    void DrawFocus();

    CUGCtrl* m_grid;
    CUGCtrl::Guard m_guard;
    CGridModel m_model;
    CGridPaint m_paint;
    CGridHeader* m_top;
    CGridHeader* m_side;
    std::vector<GridCellKind> m_kinds{GridCellKind::text};
    int m_headingRows = 1;
    int m_headingHeight = 0;
    int m_mode = currentCellFocusRect | currentCellHighlight;
    bool m_toolTips = true;
    /// Columns and their widths in pixels that were set while redraw is off.
    std::map<int, int> m_newWidths;
    int m_column = -1;
    int m_row = -1;
    bool m_showsCurrentSoon = false;
    /// The rows were sorted since the user picked one last.
    bool m_sorted = false;
    QColor m_back;
};
