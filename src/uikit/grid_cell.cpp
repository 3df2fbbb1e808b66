#include "uikit/grid_cell.h"

#include "platform/format.h"
#include "platform/number_scan.h"

void CUGCell::Clear()
{
    m_text.clear();
    m_decimals = 0;
    m_cellType = kGridTextType;
    m_typeFlag = 0;
    m_dataType = GridDataType::text;
    m_align = GridAlign::left;
}

void CUGCell::SetText(const CString& text)
{
    m_text = text;
    m_dataType = GridDataType::text;
}

void CUGCell::SetNumber(double number)
{
    m_text = FormatFixed(number, m_decimals, 1);
    m_dataType = GridDataType::number;
}

double CUGCell::GetNumber() const
{
    return _wtof(m_text);
}
