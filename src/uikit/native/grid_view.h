#pragma once

#include "uikit/grid.h"
#include "uikit/native/grid_model.h"
#include "uikit/native/grid_paint.h"

#include <QTableView>

/// What shows a grid and takes the user's keys and mouse for it.
class CGridView : public QTableView
{
public:
    /// The cells must outlive the object.
    CGridView(CUGCtrl& grid, CGridModel& cells, CUGCtrl::Guard guard, QWidget* parent);

    CGridPaint& Paint() { return m_paint; }
    QColor BackColor(GridSection section);

    /// Runs a callback inside the guard.
    void Raise(const std::function<void(CUGCtrl&)>& callback);

    void SetCellFont(const QFont& font);
    void SetHeadingHeight(int pixels);
    void SetCurrentCellMode(int mode);
    /// Makes a cell the current one; a place outside is brought to the nearest cell.
    void GotoCell(int column, int row);
    int CurrentRow() const { return m_row; }
    /// Highlights the current row, which outlives a reset of the model.
    void HighlightCurrent();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void ShowCurrentSoon();
    void Choose(int column, int row);
    bool MoveByKey(int key);
    void DrawFocus();

    CUGCtrl& m_grid;
    CGridModel& m_cells;
    CUGCtrl::Guard m_guard;
    CGridPaint m_paint;
    int m_mode = currentCellFocusRect | currentCellHighlight;
    int m_column = -1;
    int m_row = -1;
    bool m_showsCurrentSoon = false;
};
