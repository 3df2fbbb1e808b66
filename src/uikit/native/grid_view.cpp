#include "uikit/native/grid_view.h"

#include "uikit/application.h"
#include "uikit/native/access.h"
#include "uikit/native/grid_delegate.h"
#include "uikit/native/grid_header.h"
#include "uikit/native/surface.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <utility>

namespace {

constexpr int kWidthBeforeLayout = 300;
constexpr int kFitMargin = 2;
/// Two lines of the templates' font.
constexpr int kHeadingHeight = 32;

/// Columns of sizes repeat a text over many rows.
bool NeedsSameWidth(const CUGCell* above, const CUGCell& cell)
{
    return above != nullptr && above->GetCellType() == cell.GetCellType() &&
           above->GetAlignment() == cell.GetAlignment() && above->GetText() == cell.GetText();
}

GridKey KeyOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return GridKey::up;
    case Qt::Key_Down:
        return GridKey::down;
    case Qt::Key_Left:
        return GridKey::left;
    case Qt::Key_Right:
        return GridKey::right;
    case Qt::Key_PageUp:
        return GridKey::pageUp;
    case Qt::Key_PageDown:
        return GridKey::pageDown;
    case Qt::Key_Home:
        return GridKey::home;
    case Qt::Key_End:
        return GridKey::end;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return GridKey::enter;
    case Qt::Key_Escape:
        return GridKey::escape;
    default:
        return GridKey::other;
    }
}

wchar_t CharacterOf(GridKey key, const QKeyEvent& event)
{
    if (key == GridKey::enter) {
        return 13;
    }
    if (key == GridKey::escape) {
        return 27;
    }
    const CString text = FromNative(event.text());
    return text.empty() ? L'\0' : text.front();
}

} // namespace

CGridView::CGridView(CUGCtrl& grid, CUGCtrl::Guard guard, QWidget* parent)
    : QTableView(parent), m_grid(&grid), m_guard(std::move(guard)), m_paint(font()),
      m_top(new CGridHeader(Qt::Horizontal, *this)), m_side(new CGridHeader(Qt::Vertical, *this))
{
    setModel(&m_model);
    setHorizontalHeader(m_top);
    setVerticalHeader(m_side);
    setItemDelegate(new CGridDelegate(*this));
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    // The view fills all of it, so nothing below needs painting.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAutoScroll(false);
    m_side->SetThickness(0);
    SetRowHighlight(false);
    SetHeadingHeight(kHeadingHeight);
    FontChanged();
}

void CGridView::Raise(const std::function<void(CUGCtrl&)>& callback)
{
    if (m_grid == nullptr) {
        return;
    }
    const auto work = [this, &callback] { callback(*m_grid); };
    if (m_guard) {
        m_guard(work);
    } else {
        work();
    }
}

void CGridView::SetColumnCount(int count)
{
    m_model.SetColumnCount(count);
    HighlightCurrent();
}

bool CGridView::DeleteRow(int row)
{
    if (!m_model.DeleteRow(row)) {
        return false;
    }
    m_sorted = m_sorted && m_model.Rows().GetRowCount() > 0;
    HighlightCurrent();
    return true;
}

void CGridView::SetRedraw(bool redraw)
{
    if (redraw && m_model.IsSuspended()) {
        m_model.Suspend(false);
        ApplyWidths();
        HighlightCurrent();
    }
    m_model.Suspend(!redraw);
    // The scroll bar and the headings see nothing of a suspended model, and painting them anew
    // takes as long as painting many rows.
    viewport()->setUpdatesEnabled(redraw);
}

int CGridView::AddCellType(GridCellKind kind)
{
    m_kinds.push_back(kind);
    return static_cast<int>(m_kinds.size()) - 1;
}

GridCellKind CGridView::KindOf(const CUGCell& cell) const
{
    const auto type = static_cast<std::size_t>(cell.GetCellType());
    return type < m_kinds.size() ? m_kinds[type] : GridCellKind::text;
}

void CGridView::SetHeadingRows(int rows)
{
    m_headingRows = rows;
    SetHeadingHeight(m_headingHeight);
}

void CGridView::SetHeadingHeight(int height)
{
    m_headingHeight = height;
    m_top->SetThickness(m_headingRows > 0 ? qRound(height * GetDialogScale()) : 0);
}

void CGridView::SetCurrentCellMode(int mode)
{
    m_mode = mode;
    viewport()->update();
}

void CGridView::SetRowHighlight(bool wholeRow)
{
    setSelectionBehavior(wholeRow ? SelectRows : SelectItems);
    HighlightCurrent();
}

void CGridView::FontChanged()
{
    m_paint = CGridPaint(font());
    m_side->setDefaultSectionSize(m_paint.RowHeight());
}

void CGridView::GotoCell(int column, int row)
{
    m_column = qMax(0, qMin(column, m_model.Rows().GetColumnCount() - 1));
    m_row = qMax(0, qMin(row, m_model.Rows().GetRowCount() - 1));
    HighlightCurrent();
}

/// Brings the toolkit's current cell to the grid's own, which outlives a reset of the model.
void CGridView::HighlightCurrent()
{
    if (m_model.IsSuspended()) {
        return;
    }
    if (m_model.rowCount() == 0 || m_model.columnCount() == 0) {
        m_row = -1;
        m_column = -1;
        return;
    }
    m_row = qMin(m_row, m_model.rowCount() - 1);
    m_column = qMin(m_column, m_model.columnCount() - 1);
    QItemSelectionModel::SelectionFlags flags = QItemSelectionModel::ClearAndSelect;
    flags.setFlag(QItemSelectionModel::Rows, selectionBehavior() == SelectRows);
    selectionModel()->setCurrentIndex(m_model.index(m_row, m_column), flags);
    ShowCurrentSoon();
}

/// A rebuild moves to the first row and then to the best one; scrolling there and back would paint
/// the scroll bar for nothing.
void CGridView::ShowCurrentSoon()
{
    if (m_showsCurrentSoon) {
        return;
    }
    m_showsCurrentSoon = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_showsCurrentSoon = false;
            scrollTo(currentIndex());
        },
        Qt::QueuedConnection);
}

int CGridView::ColumnWidth(int column) const
{
    const auto changed = m_newWidths.find(column);
    return changed != m_newWidths.end() ? changed->second : m_top->sectionSize(column);
}

/// A fit and the corrections of its owner come one after the other, and the headings would be
/// painted for each.
void CGridView::SetColumnWidth(int column, int width)
{
    if (column < 0 || column >= m_top->count()) {
        return;
    }
    m_newWidths[column] = width;
    if (!m_model.IsSuspended()) {
        ApplyWidths();
    }
}

void CGridView::ApplyWidths()
{
    for (const auto& [column, width] : std::exchange(m_newWidths, {})) {
        m_top->resizeSection(column, width);
    }
}

void CGridView::BestFit(int first, int count, int rows, bool headings)
{
    const int inside = contentsRect().width();
    const int widest = inside > 0 ? inside - m_side->GetThickness() : kWidthBeforeLayout;
    const int lastRow = qMin(rows, m_model.Rows().GetRowCount());
    const int begin = qMax(first, 0);
    const int end = qMin(count, m_top->count());
    struct CFit
    {
        int nWidth = kGridMinColumnWidth;
        const CUGCell* pAbove = nullptr;
    };
    std::vector<CFit> fits(static_cast<std::size_t>(qMax(end, 0)));
    for (int row = headings ? -1 : 0; row < lastRow; ++row) {
        for (int column = begin; column < end; ++column) {
            const CUGCell& cell = *m_model.Rows().Find(column, row);
            CFit& fit = fits[static_cast<std::size_t>(column)];
            if (!NeedsSameWidth(fit.pAbove, cell)) {
                const int width = m_paint.CellWidth(cell, KindOf(cell)) + kFitMargin;
                fit.nWidth = qMax(fit.nWidth, width);
            }
            fit.pAbove = &cell;
        }
    }
    for (int column = begin; column < end; ++column) {
        SetColumnWidth(column, qMin(fits[static_cast<std::size_t>(column)].nWidth, widest));
    }
}

/// A move of the user's.
void CGridView::Choose(int column, int row)
{
    const int oldRow = m_row;
    GotoCell(column, row);
    scrollTo(currentIndex());
    const int newRow = m_row;
    const bool sorted = std::exchange(m_sorted, false);
    if (sorted || newRow != oldRow) {
        Raise([=](CUGCtrl& grid) { grid.OnRowChange(oldRow, newRow); });
    }
}

bool CGridView::MoveByKey(GridKey key)
{
    const int page = qMax(1, viewport()->height() / m_paint.RowHeight());
    switch (key) {
    case GridKey::up:
        Choose(m_column, m_row - 1);
        return true;
    case GridKey::down:
        Choose(m_column, m_row + 1);
        return true;
    case GridKey::left:
        Choose(m_column - 1, m_row);
        return true;
    case GridKey::right:
        Choose(m_column + 1, m_row);
        return true;
    case GridKey::pageUp:
        Choose(m_column, m_row - page);
        return true;
    case GridKey::pageDown:
        Choose(m_column, m_row + page);
        return true;
    case GridKey::home:
        Choose(m_column, 0);
        return true;
    case GridKey::end:
        Choose(m_column, m_model.rowCount() - 1);
        return true;
    case GridKey::enter:
    case GridKey::escape:
    case GridKey::other:
        break;
    }
    return false;
}

void CGridView::keyPressEvent(QKeyEvent* event)
{
    GridKey key = KeyOf(event->key());
    bool processed = false;
    Raise([&](CUGCtrl& grid) { grid.OnKeyDown(&key, processed); });
    if (processed || MoveByKey(key)) {
        event->accept();
        return;
    }
    wchar_t character = CharacterOf(key, *event);
    if (character != L'\0') {
        Raise([&](CUGCtrl& grid) { grid.OnCharTyped(&character, processed); });
    }
    event->setAccepted(processed);
}

void CGridView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex at = indexAt(event->pos());
    if (!at.isValid()) {
        return;
    }
    const int column = at.column();
    const int row = at.row();
    if (event->button() == Qt::LeftButton) {
        Choose(column, row);
    }
    RaiseClick(*event, true);
    if (event->button() == Qt::LeftButton) {
        PressCell(column, row);
    }
}

void CGridView::PressCell(int column, int row)
{
    const CUGCell* cell = m_model.Rows().Find(column, row);
    if (cell != nullptr && KindOf(*cell) == GridCellKind::button) {
        const int type = cell->GetCellType();
        Raise(
            [=](CUGCtrl& grid) { grid.OnCellTypeNotify(type, column, row, kGridCellPressed, 0); });
    }
}

void CGridView::RaiseClick(const QMouseEvent& event, bool down)
{
    const QModelIndex at = indexAt(event.pos());
    if (!at.isValid()) {
        return;
    }
    if (event.button() == Qt::LeftButton) {
        Raise([&](CUGCtrl& grid) { grid.OnLeftClick(at.column(), at.row(), down); });
    } else if (event.button() == Qt::RightButton) {
        Raise([&](CUGCtrl& grid) { grid.OnRightClick(at.column(), at.row(), down); });
    }
}

/// A drag across rows chooses nothing: every choice makes its owner compute.
void CGridView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton) {
        QTableView::mouseMoveEvent(event);
    }
}

void CGridView::mouseReleaseEvent(QMouseEvent* event)
{
    RaiseClick(*event, false);
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

void CGridView::contextMenuEvent(QContextMenuEvent* event)
{
    const QModelIndex at = indexAt(event->pos());
    const int column = at.column();
    const int row = at.row();
    CMenu entries;
    const bool wanted = Ask(false, [&](CUGCtrl& grid) {
        return grid.OnMenuStart(column, row, GridSection::grid, entries);
    });
    if (!wanted || entries.GetEntries().empty()) {
        return;
    }
    QMenu menu(this);
    for (const CMenu::Entry& entry : entries.GetEntries()) {
        if (entry.id == 0) {
            menu.addSeparator();
        } else {
            menu.addAction(ToNative(entry.text))->setData(entry.id);
        }
    }
    if (const QAction* chosen = menu.exec(event->globalPos())) {
        const unsigned id = chosen->data().toUInt();
        Raise([=](CUGCtrl& grid) { grid.OnMenuCommand(column, row, GridSection::grid, id); });
    }
}

bool CGridView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QTableView::viewportEvent(event);
    }
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex at = indexAt(help.pos());
    ShowToolTip({help.globalPos(), viewport(), visualRect(at)}, at.column(), at.row(),
                GridSection::grid);
    return true;
}

void CGridView::ShowToolTip(const TipPlace& place, int column, int row, GridSection section)
{
    CString html;
    const bool isCell = section == GridSection::sideHeading ? row >= 0 : column >= 0;
    const bool wanted = m_toolTips && isCell && Ask(false, [&](CUGCtrl& grid) {
                            return grid.OnToolTip(column, row, section, html);
                        });
    if (wanted) {
        QToolTip::showText(place.screen, ToNative(html), place.on, place.rect);
    } else {
        QToolTip::hideText();
    }
}

QColor CGridView::BackColor(GridSection section)
{
    return ToNative(
        Ask(RGB(255, 255, 255), [=](CUGCtrl& grid) { return grid.OnDefaultBackColor(section); }));
}

void CGridView::DrawCell(QPainter& painter, const QRect& rect, int column, int row)
{
    const CUGCell* cell = m_model.Rows().Find(column, row);
    if (cell != nullptr) {
        m_paint.DrawCell(painter, rect, *cell, KindOf(*cell));
    }
}

void CGridView::paintEvent(QPaintEvent* event)
{
    m_back = BackColor(GridSection::grid);
    QPainter(viewport()).fillRect(event->rect(), m_back);
    QTableView::paintEvent(event);
    DrawFocus();
}

void CGridView::DrawFocus()
{
    if (!hasFocus() || (m_mode & currentCellFocusRect) == 0 || m_row < 0) {
        return;
    }
    QRect rect = visualRect(m_model.index(m_row, m_column));
    if (selectionBehavior() == SelectRows) {
        rect.setLeft(-m_top->offset());
        rect.setWidth(m_top->length());
    }
    CPaintDC dc(viewport());
    Raise([&](CUGCtrl& grid) { grid.OnDrawFocusRect(dc, FromNative(rect)); });
}

void CGridView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FontChanged();
    }
}
