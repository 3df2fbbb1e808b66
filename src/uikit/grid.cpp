#include "uikit/grid.h"

#include <utility>

CUGCtrl::CUGCtrl() = default;

void CUGCtrl::OnSetup() {}

bool CUGCtrl::OnCellTypeNotify(int /*type*/, int /*column*/, int /*row*/, int /*message*/,
                               long /*parameter*/)
{
    return true;
}

bool CUGCtrl::OnMaySizeColumn(int /*column*/)
{
    return true;
}

bool CUGCtrl::OnMaySizeRow(int /*row*/)
{
    return false;
}

bool CUGCtrl::OnMaySizeHeadingHeight()
{
    return false;
}

bool CUGCtrl::OnMaySizeSideHeading()
{
    return true;
}

bool CUGCtrl::OnHeadingHeightSizing(int* /*height*/)
{
    return true;
}

bool CUGCtrl::OnHeadingHeightSized(int* /*height*/)
{
    return true;
}

bool CUGCtrl::OnSideHeadingSizing(int* /*width*/)
{
    return true;
}

bool CUGCtrl::OnSideHeadingSized(int* /*width*/)
{
    return true;
}

void CUGCtrl::OnRowChange(int /*oldRow*/, int /*newRow*/) {}

void CUGCtrl::OnLeftClick(int /*column*/, int /*row*/, bool /*down*/) {}

void CUGCtrl::OnRightClick(int /*column*/, int /*row*/, bool /*down*/) {}

void CUGCtrl::OnDoubleClick(int /*column*/, int /*row*/) {}

void CUGCtrl::OnHeadingClick(int /*column*/, int /*row*/, bool /*down*/) {}

void CUGCtrl::OnKeyDown(GridKey* /*key*/, bool& /*processed*/) {}

void CUGCtrl::OnCharTyped(wchar_t* /*character*/, bool& /*processed*/) {}

bool CUGCtrl::OnEditStart(int /*column*/, int /*row*/)
{
    return true;
}

bool CUGCtrl::OnEditVerify(int /*column*/, int /*row*/, CString& /*text*/)
{
    return true;
}

bool CUGCtrl::OnEditFinish(int /*column*/, int /*row*/, CString& /*text*/, bool /*cancelled*/)
{
    return true;
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

bool CUGCtrl::OnMenuStart(int /*column*/, int /*row*/, GridSection /*section*/, CMenu& /*menu*/)
{
    return true;
}

void CUGCtrl::OnMenuCommand(int /*column*/, int /*row*/, GridSection /*section*/, unsigned /*id*/)
{
}

bool CUGCtrl::OnToolTip(int /*column*/, int /*row*/, GridSection /*section*/, CString& /*html*/)
{
    return false;
}

int CUGCtrl::OnSortEvaluate(const CUGCell& first, const CUGCell& second, int flags)
{
    const bool swapped = (flags & kSortDescending) != 0;
    const CUGCell& a = swapped ? second : first;
    const CUGCell& b = swapped ? first : second;
    if (a.GetDataType() != GridDataType::number) {
        return a.GetText().compare(b.GetText());
    }
    const double left = a.GetNumber();
    const double right = b.GetNumber();
    return left < right ? -1 : left > right ? 1 : 0;
}

COLORREF CUGCtrl::OnDefaultBackColor(GridSection section)
{
    return section == GridSection::grid ? RGB(255, 255, 255) : RGB(243, 244, 246);
}

void CUGCtrl::OnDrawFocusRect(CDC& dc, const CRect& rect)
{
    dc.DrawFocusRect(rect);
}
