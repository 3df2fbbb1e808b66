#include "uikit/grid.h"

#include "uikit/native/access.h"
#include "uikit/native/grid_header.h"
#include "uikit/native/grid_view.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace {

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

CUGCtrl::~CUGCtrl()
{
    if (CGridView* view = View()) {
        view->Detach();
    }
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
    auto* view = new CGridView(*this, std::move(guard), place);
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
    if (CGridView* view = View()) {
        view->SetColumnCount(count);
    }
}

int CUGCtrl::GetColumnCount() const
{
    CGridView* view = View();
    return view != nullptr ? view->Model().Rows().GetColumnCount() : 0;
}

int CUGCtrl::GetRowCount() const
{
    CGridView* view = View();
    return view != nullptr ? view->Model().Rows().GetRowCount() : 0;
}

void CUGCtrl::AppendRow()
{
    if (CGridView* view = View()) {
        view->Model().AppendRow();
    }
}

bool CUGCtrl::DeleteRow(int row)
{
    CGridView* view = View();
    return view != nullptr && view->DeleteRow(row);
}

bool CUGCtrl::SetCell(int column, int row, const CUGCell& cell)
{
    CGridView* view = View();
    return view != nullptr && view->Model().SetCell(column, row, cell);
}

bool CUGCtrl::GetCell(int column, int row, CUGCell& cell) const
{
    CGridView* view = View();
    const CUGCell* found = view != nullptr ? view->Model().Rows().Find(column, row) : nullptr;
    if (found == nullptr) {
        return false;
    }
    cell = *found;
    return true;
}

CString CUGCtrl::GetCellText(int column, int row) const
{
    CGridView* view = View();
    const CUGCell* found = view != nullptr ? view->Model().Rows().Find(column, row) : nullptr;
    return found != nullptr ? found->GetText() : CString();
}

int CUGCtrl::AddCellType(GridCellKind kind)
{
    CGridView* view = View();
    return view != nullptr ? view->AddCellType(kind) : kGridTextType;
}

void CUGCtrl::SetHeadingRows(int rows)
{
    if (CGridView* view = View()) {
        view->SetHeadingRows(rows);
    }
}

void CUGCtrl::SetHeadingHeight(int height)
{
    if (CGridView* view = View()) {
        view->SetHeadingHeight(height);
    }
}

void CUGCtrl::SetSideHeadingWidth(int width)
{
    if (CGridView* view = View()) {
        view->SideHeading().SetThickness(width);
    }
}

void CUGCtrl::SetDefaultFont(const CFont& font)
{
    if (CGridView* view = View()) {
        view->setFont(ToNative(font));
    }
}

void CUGCtrl::SetScrollTracking(bool horizontal, bool vertical)
{
    if (CGridView* view = View()) {
        view->horizontalScrollBar()->setTracking(horizontal);
        view->verticalScrollBar()->setTracking(vertical);
    }
}

void CUGCtrl::SetCurrentCellMode(int mode)
{
    if (CGridView* view = View()) {
        view->SetCurrentCellMode(mode);
    }
}

void CUGCtrl::SetRowHighlight(bool wholeRow)
{
    if (CGridView* view = View()) {
        view->SetRowHighlight(wholeRow);
    }
}

void CUGCtrl::EnableToolTips(bool enable)
{
    if (CGridView* view = View()) {
        view->EnableToolTips(enable);
    }
}

void CUGCtrl::SetRedraw(bool redraw)
{
    if (CGridView* view = View()) {
        view->SetRedraw(redraw);
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
    CGridView* view = View();
    return view != nullptr ? view->CurrentRow() : -1;
}

int CUGCtrl::GetCurrentColumn() const
{
    CGridView* view = View();
    return view != nullptr ? view->CurrentColumn() : -1;
}

int CUGCtrl::GetColumnWidth(int column) const
{
    CGridView* view = View();
    return view != nullptr ? view->ColumnWidth(column) : 0;
}

void CUGCtrl::SetColumnWidth(int column, int width)
{
    if (CGridView* view = View()) {
        view->SetColumnWidth(column, width);
    }
}

void CUGCtrl::BestFit(int first, int count, int rows, bool headings)
{
    if (CGridView* view = View()) {
        view->BestFit(first, count, rows, headings);
    }
}

void CUGCtrl::SortBy(int column, int flags)
{
    if (CGridView* view = View()) {
        view->Model().Sort(column, [this, flags](const CUGCell& first, const CUGCell& second) {
            return OnSortEvaluate(first, second, flags);
        });
        view->RowsSorted();
    }
}
