#include "uikit/native/grid_view.h"

#include "uikit/native/access.h"
#include "uikit/native/grid_header.h"
#include "uikit/native/surface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

CGridView::CGridView(CUGCtrl& grid, CGridModel& cells, CUGCtrl::Guard guard, QWidget* parent)
    : QTableView(parent), m_grid(grid), m_cells(cells), m_guard(std::move(guard)),
      m_paint(cells, font())
{
    setHorizontalHeader(new CGridHeader(*this));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setModel(&m_cells);
    connect(&m_cells, &QAbstractItemModel::modelReset, this, &CGridView::HighlightCurrent);
    m_cells.SetToolTip([this](int column, int row) {
        CString html;
        bool wanted = false;
        const auto section = row < 0 ? GridSection::topHeading : GridSection::grid;
        Raise([&](CUGCtrl& g) { wanted = g.OnToolTip(column, row, section, html); });
        return wanted ? html : CString();
    });
    setItemDelegate(&m_paint);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setHorizontalScrollMode(ScrollPerPixel);
    // The view fills all of it, so nothing below needs painting.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAutoScroll(false);
    SetCellFont(font());
}

void CGridView::Raise(const std::function<void(CUGCtrl&)>& callback)
{
    const auto work = [this, &callback] { callback(m_grid); };
    if (m_guard) {
        m_guard(work);
    } else {
        work();
    }
}

void CGridView::SetCellFont(const QFont& wanted)
{
    setFont(wanted);
    m_paint.SetFont(font());
    verticalHeader()->setDefaultSectionSize(m_paint.RowHeight());
}

void CGridView::SetHeadingHeight(int pixels)
{
    horizontalHeader()->setFixedHeight(pixels);
    updateGeometries();
}

void CGridView::SetCurrentCellMode(int mode)
{
    m_mode = mode;
    viewport()->update();
}

void CGridView::GotoCell(int column, int row)
{
    m_column = qMax(0, qMin(column, m_cells.GetColumnCount() - 1));
    m_row = qMax(0, qMin(row, m_cells.GetRowCount() - 1));
    HighlightCurrent();
}

void CGridView::HighlightCurrent()
{
    if (m_cells.IsSuspended()) {
        return;
    }
    m_row = qMin(m_row, m_cells.rowCount() - 1);
    m_column = qMin(m_column, m_cells.columnCount() - 1);
    if (m_row < 0 || m_column < 0) {
        return;
    }
    selectionModel()->setCurrentIndex(m_cells.index(m_row, m_column),
                                      QItemSelectionModel::ClearAndSelect |
                                          QItemSelectionModel::Rows);
    ShowCurrentSoon();
}

/// A rebuild moves to the first row and then to the best one; scrolling there and back would paint
/// the scroll bar for nothing.
void CGridView::ShowCurrentSoon()
{
    if (std::exchange(m_showsCurrentSoon, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_showsCurrentSoon = false;
            scrollTo(currentIndex());
        },
        Qt::QueuedConnection);
}

/// A move of the user's.
void CGridView::Choose(int column, int row)
{
    const int oldRow = m_row;
    GotoCell(column, row);
    scrollTo(currentIndex());
    const bool sorted = m_cells.TakeSorted();
    if (sorted || m_row != oldRow) {
        Raise([this, oldRow](CUGCtrl& grid) { grid.OnRowChange(oldRow, m_row); });
    }
}

bool CGridView::MoveByKey(int key)
{
    const int page = qMax(1, viewport()->height() / m_paint.RowHeight());
    switch (key) {
    case Qt::Key_Up:
        Choose(m_column, m_row - 1);
        return true;
    case Qt::Key_Down:
        Choose(m_column, m_row + 1);
        return true;
    case Qt::Key_Left:
        Choose(m_column - 1, m_row);
        return true;
    case Qt::Key_Right:
        Choose(m_column + 1, m_row);
        return true;
    case Qt::Key_PageUp:
        Choose(m_column, m_row - page);
        return true;
    case Qt::Key_PageDown:
        Choose(m_column, m_row + page);
        return true;
    case Qt::Key_Home:
        Choose(m_column, 0);
        return true;
    case Qt::Key_End:
        Choose(m_column, m_cells.GetRowCount() - 1);
        return true;
    default:
        return false;
    }
}

void CGridView::keyPressEvent(QKeyEvent* event)
{
    if (MoveByKey(event->key())) {
        event->accept();
        return;
    }
    bool processed = false;
    CString text = FromNative(event->text());
    if (!text.empty()) {
        Raise([&](CUGCtrl& grid) { grid.OnCharTyped(text.data(), processed); });
    }
    event->setAccepted(processed);
}

void CGridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex at = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && at.isValid()) {
        Choose(at.column(), at.row());
    }
}

/// A drag across rows chooses nothing: every choice makes its owner compute.
void CGridView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) {
        QTableView::mouseMoveEvent(event);
    }
}

void CGridView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex at = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && at.isValid()) {
        // The second press may have come down on another row than the first.
        Choose(at.column(), at.row());
        Raise([&](CUGCtrl& grid) { grid.OnDoubleClick(at.column(), at.row()); });
    }
}

QColor CGridView::BackColor(GridSection section)
{
    COLORREF color = RGB(255, 255, 255);
    Raise([&](CUGCtrl& grid) { color = grid.OnDefaultBackColor(section); });
    return ToNative(color);
}

void CGridView::paintEvent(QPaintEvent* event)
{
    const QColor back = BackColor(GridSection::grid);
    m_paint.SetBack(back, (m_mode & currentCellHighlight) != 0);
    QPainter(viewport()).fillRect(event->rect(), back);
    QTableView::paintEvent(event);
    DrawFocus();
}

void CGridView::DrawFocus()
{
    if (!hasFocus() || (m_mode & currentCellFocusRect) == 0 || m_row < 0) {
        return;
    }
    QRect rect = visualRect(m_cells.index(m_row, m_column));
    rect.setLeft(-horizontalHeader()->offset());
    rect.setWidth(horizontalHeader()->length());
    CPaintDC dc(viewport());
    Raise([&](CUGCtrl& grid) { grid.OnDrawFocusRect(dc, FromNative(rect)); });
}
