#pragma once

#include "workbench/report/report_sheet.h"

#include <vector>

namespace workbench {

struct CReportColumn
{
    QString strTitel;
    /// In millimetres.
    double dBreite = 0.0;
    bool bRechts = false;
};

enum class RowLook
{
    plain,
    /// Of a room that is still open.
    warning,
    /// Heads the rows behind it with its only cell, which takes the whole width.
    group,
    total,
};

struct CReportRow
{
    /// One a column, but for a group.
    std::vector<QString> zellen;
    RowLook look = RowLook::plain;
};

struct CReportTable
{
    QString strTitel;
    std::vector<CReportColumn> columns;
    std::vector<CReportRow> rows;
};

/// Gives all columns together a width: alike at first, and then those whose texts have less than
/// they need take of what others have to spare.
void FitColumns(CReportTable& table, double width, const CReportSheet& sheet);

/// A line of a table at its place on a page.
struct CTableLine
{
    enum class Kind
    {
        title,
        headings,
        row,
    };

    Kind kind = Kind::row;
    std::size_t nTable = 0;
    std::size_t nRow = 0;
    /// Repeats what stood on the page before.
    bool bSegue = false;
    /// From the upper edge of the page's area, in millimetres.
    double dTop = 0.0;
};

/// Tables one below the other over pages of a height in millimetres. Where one goes on to the next
/// page its title, headings and the head of the group are repeated, and none of these is left alone
/// at the foot of a page. Tables without rows are left out.
std::vector<std::vector<CTableLine>> LayOutTables(const std::vector<CReportTable>& tables,
                                                  double height);

/// Headings that have no room in their columns and would end in "…".
std::vector<QString> FindCutHeadings(const CReportSheet& sheet, const CReportTable& table);

/// Paints a line of its table; `corner` is the upper left one of the page's area.
void PaintTableLine(CReportSheet& sheet, const QPointF& corner, const CReportTable& table,
                    const CTableLine& line);

} // namespace workbench
