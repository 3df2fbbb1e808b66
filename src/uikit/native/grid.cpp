#include "uikit/grid.h"

#include "uikit/application.h"
#include "uikit/native/access.h"
#include "uikit/native/grid_view.h"

#include <QHeaderView>
#include <QVBoxLayout>

#include <utility>
#include <vector>

namespace {

constexpr int kWidthBeforeLayout = 300;
constexpr int kFitMargin = 2;

/// Puts a widget into the Tab order where another stands, and on the way of focus sent to that.
void TakeTabPlace(QWidget& of, QWidget& widget)
{
    const Qt::FocusPolicy policy = of.focusPolicy();
    // Widgets that take no focus have no place in the order.
    of.setFocusPolicy(Qt::StrongFocus);
    QWidget::setTabOrder(&of, &widget);
    of.setFocusPolicy(policy);
    of.setFocusProxy(&widget);
}

} // namespace

CUGCtrl::CUGCtrl() : m_cells(std::make_unique<CGridModel>()) {}

CUGCtrl::~CUGCtrl()
{
    delete View();
}

CGridView* CUGCtrl::View() const
{
    return static_cast<CGridView*>(CNativeAccess::Widget(m_inner));
}

bool CUGCtrl::AttachTo(const CWnd& placeholder, Guard guard)
{
    QWidget* place = CNativeAccess::Widget(placeholder);
    if (place == nullptr || View() != nullptr) {
        return false;
    }
    m_cells = std::make_unique<CGridModel>();
    auto* view = new CGridView(*this, *m_cells, std::move(guard), place);
    SetControlId(*view, GetControlId(*place));
    view->setGeometry(place->rect());
    view->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    auto* fill = new QVBoxLayout(place);
    fill->setContentsMargins(0, 0, 0, 0);
    fill->addWidget(view);
    TakeTabPlace(*place, *view);
    view->show();
    CNativeAccess::CopyTo(*this, placeholder);
    CNativeAccess::Attach(m_inner, view);
    OnSetup();
    return true;
}

void CUGCtrl::SetColumnCount(int count)
{
    m_cells->SetColumnCount(count);
    if (CGridView* view = View()) {
        for (int column = 0; column < count; ++column) {
            view->horizontalHeader()->setSectionResizeMode(
                column, OnMaySizeColumn(column) ? QHeaderView::Interactive : QHeaderView::Fixed);
        }
    }
}

int CUGCtrl::GetColumnCount() const
{
    return m_cells->GetColumnCount();
}

int CUGCtrl::GetRowCount() const
{
    return m_cells->GetRowCount();
}

void CUGCtrl::AppendRow(std::span<const CUGCell> cells)
{
    m_cells->AppendRow(cells);
}

bool CUGCtrl::DeleteRow(int row)
{
    return m_cells->DeleteRow(row);
}

bool CUGCtrl::SetCell(int column, int row, const CUGCell& cell)
{
    return m_cells->SetCell(column, row, cell);
}

bool CUGCtrl::GetCell(int column, int row, CUGCell& cell) const
{
    const CUGCell* found = m_cells->Find(column, row);
    if (found != nullptr) {
        cell = *found;
    }
    return found != nullptr;
}

CString CUGCtrl::GetCellText(int column, int row) const
{
    const CUGCell* found = m_cells->Find(column, row);
    return found != nullptr ? found->GetText() : CString();
}

void CUGCtrl::SetHeadingHeight(int height)
{
    if (CGridView* view = View()) {
        view->SetHeadingHeight(qRound(height * GetDialogScale()));
    }
}

void CUGCtrl::SetNarrowestColumn(int width)
{
    if (CGridView* view = View()) {
        view->horizontalHeader()->setMinimumSectionSize(width);
    }
}

void CUGCtrl::SetDefaultFont(const CFont& font)
{
    if (CGridView* view = View()) {
        view->SetCellFont(ToNative(font));
    }
}

void CUGCtrl::SetCurrentCellMode(int mode)
{
    if (CGridView* view = View()) {
        view->SetCurrentCellMode(mode);
    }
}

void CUGCtrl::SetRedraw(bool redraw)
{
    m_cells->Suspend(!redraw);
    if (CGridView* view = View()) {
        // The scroll bar and the headings see nothing of suspended cells, and painting them anew
        // takes as long as painting many rows.
        view->viewport()->setUpdatesEnabled(redraw);
        view->HighlightCurrent();
    }
}

void CUGCtrl::RedrawAll()
{
    if (CGridView* view = View()) {
        view->viewport()->update();
    }
}

void CUGCtrl::GotoCell(int column, int row)
{
    if (CGridView* view = View()) {
        view->GotoCell(column, row);
    }
}

void CUGCtrl::ClearSelection()
{
    if (CGridView* view = View()) {
        view->clearSelection();
    }
}

int CUGCtrl::GetCurrentRow() const
{
    const CGridView* view = View();
    return view != nullptr ? view->CurrentRow() : -1;
}

int CUGCtrl::GetColumnWidth(int column) const
{
    const CGridView* view = View();
    return view != nullptr ? view->columnWidth(column) : 0;
}

void CUGCtrl::SetColumnWidth(int column, int width)
{
    CGridView* view = View();
    if (view != nullptr && column >= 0 && column < GetColumnCount()) {
        view->setColumnWidth(column, width);
    }
}

void CUGCtrl::BestFit(int first, int count, int rows, int narrowest)
{
    CGridView* view = View();
    if (view == nullptr) {
        return;
    }
    const int inside = view->contentsRect().width();
    const int widest = inside > 0 ? inside : kWidthBeforeLayout;
    const int begin = qMax(first, 0);
    const int end = qMin(count, GetColumnCount());
    std::vector<int> widths(static_cast<std::size_t>(qMax(end, 0)));
    // Row by row, as the cells lie in memory. Rows that follow each other mostly share cells.
    const CUGCell* above = nullptr;
    for (int row = -1; row < qMin(rows, GetRowCount()); ++row) {
        const CUGCell* const cells = m_cells->Find(0, row);
        for (int column = begin; column < end; ++column) {
            if (row < 1 || cells[column] != above[column]) {
                int& width = widths[static_cast<std::size_t>(column)];
                width = qMax(width, view->Paint().CellWidth(cells[column]) + kFitMargin);
            }
        }
        above = cells;
    }
    for (int column = begin; column < end; ++column) {
        const int width = widths[static_cast<std::size_t>(column)];
        view->setColumnWidth(column, qMax(qMin(width, widest), narrowest));
    }
}

void CUGCtrl::SortBy(int column, int flags)
{
    m_cells->Sort(column, [this, flags](const CUGCell& first, const CUGCell& second) {
        return OnSortEvaluate(first, second, flags);
    });
}

bool CUGCtrl::OnEditContinue(int /*oldColumn*/, int /*oldRow*/, int* newColumn, int* newRow)
{
    if (*newColumn >= GetColumnCount()) {
        *newColumn = 0;
        ++*newRow;
    } else if (*newColumn < 0) {
        *newColumn = GetColumnCount() - 1;
        --*newRow;
    }
    if (*newRow >= GetRowCount()) {
        *newRow = 0;
    } else if (*newRow < 0) {
        *newRow = GetRowCount() - 1;
    }
    return true;
}
