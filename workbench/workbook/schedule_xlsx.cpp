#include "workbench/workbook/schedule_xlsx.h"

#include "workbench/schedule/schedule_columns.h"
#include "workbench/schedule/text_columns.h"
#include "workbench/workbook/workbook.h"

#include <algorithm>

namespace workbench {

namespace {

using Row = std::uint32_t;
using Column = std::uint16_t;

/// Floor and room stay in sight while the sheet moves.
constexpr Column kRoomColumns = 2;

/// Columns are as wide as what stands in them, within these many characters.
constexpr int kNarrowest = 8;
constexpr int kWidest = 44;

/// Rows of a sheet, the last one included.
struct CRows
{
    Row first = 0;
    Row last = 0;

    bool IsEmpty() const { return last < first; }
};

/// Writes a list of columns to a sheet, line by line below their headings.
template <class COLUMN>
class CSheetWriter
{
public:
    CSheetWriter(CWorkbook& book, const char* name, const std::vector<COLUMN>& columns,
                 Column firstMoving)
        : m_book(book), m_columns(columns)
    {
        m_book.AddSheet(name, firstMoving);
        ForEachShown(m_columns, Output::csv, [&](const COLUMN& column, const CColumnLook& look) {
            m_shown.push_back(&column);
            m_widths.push_back(kNarrowest);
            PutText(static_cast<Column>(Columns() - 1), column.HeadingOf(look),
                    CWorkbook::Look::heading);
        });
        ++m_row;
    }

    /// The row that is written next.
    Row NextRow() const { return m_row; }

    template <class LINE>
    void AddLine(const LINE& line, bool isFurther)
    {
        Column column = 0;
        const auto cells =
            MakeCells<CCell>(m_columns, Output::csv, line, isFurther,
                             [](const CNumberForm&, const CCell& cell) { return cell; });
        for (const CCell& cell : cells) {
            Put(column++, cell, CWorkbook::Look::plain);
        }
        ++m_row;
    }

    /// A line of sums over rows of the sheet.
    template <class SUM>
    void AddSum(const SUM& sum, const CRows& rows)
    {
        for (Column column = 0; column < Columns(); ++column) {
            const CCell cell = m_shown[column]->TotalOf(sum);
            const char* const formula = m_shown[column]->GetFormula();
            const auto* const number = std::get_if<double>(&cell);
            if (number && formula && !rows.IsEmpty()) {
                m_book.Formula(m_row, column, Resolved(formula, column, rows), *number,
                               m_shown[column]->GetForm(), CWorkbook::Look::sum);
            } else {
                Put(column, cell, CWorkbook::Look::sum);
            }
        }
        ++m_row;
    }

    void Finish(Row lastToFilter)
    {
        for (Column column = 0; column < Columns(); ++column) {
            m_book.Width(column, m_widths[column] + 2);
        }
        m_book.Filter(lastToFilter, static_cast<Column>(Columns() - 1));
    }

private:
    Column Columns() const { return static_cast<Column>(m_shown.size()); }

    void Put(Column column, const CCell& cell, CWorkbook::Look look)
    {
        if (const auto* const number = std::get_if<double>(&cell)) {
            m_book.Number(m_row, column, *number, m_shown[column]->GetForm(), look);
            return;
        }
        const auto* const text = std::get_if<CString>(&cell);
        PutText(column, text ? *text : CString(), look);
    }

    void PutText(Column column, const CString& text, CWorkbook::Look look)
    {
        m_book.Text(m_row, column, text, look);
        m_widths[column] = std::clamp(GetDisplayWidth(text), m_widths[column], kWidest);
    }

    /// The formula with cells in place of what stands for them.
    std::string Resolved(std::string formula, Column own, const CRows& rows) const
    {
        for (std::size_t open = formula.find('{'); open != std::string::npos;
             open = formula.find('{')) {
            const std::size_t length = formula.find('}', open) - open + 1;
            const std::string name = formula.substr(open + 1, length - 2);
            formula.replace(open, length,
                            name.empty()
                                ? CellName(rows.first, own) + ":" + CellName(rows.last, own)
                                : CellName(m_row, ColumnOf(name)));
        }
        return formula;
    }

    Column ColumnOf(const std::string& name) const
    {
        const auto found = std::ranges::find_if(m_shown, [&](const COLUMN* column) {
            return column->JsonName() && name == column->JsonName();
        });
        return static_cast<Column>(found - m_shown.begin());
    }

    CWorkbook& m_book;
    const std::vector<COLUMN>& m_columns;
    std::vector<const COLUMN*> m_shown;
    std::vector<int> m_widths;
    Row m_row = 0;
};

void WriteRooms(CWorkbook& book, const CSchedule& schedule)
{
    CSheetWriter sheet(book, "Corpi scaldanti", ScheduleColumns(), kRoomColumns);
    const Row first = sheet.NextRow();
    std::vector<CRows> rowsOfFloors;
    for (const CScheduleFloor& floor : schedule.floors) {
        const Row begin = sheet.NextRow();
        for (const CScheduleRow& row : floor.rows) {
            sheet.AddLine(CScheduleLine{floor.strName, row, {}}, !row.bErster);
        }
        rowsOfFloors.push_back({begin, sheet.NextRow() - 1});
    }
    const Row last = sheet.NextRow() - 1;
    for (std::size_t i = 0; i < schedule.floors.size(); ++i) {
        const CScheduleFloor& floor = schedule.floors[i];
        sheet.AddSum(CScheduleSum{floor.totals, floor.strName, {}, L"totale del piano"},
                     rowsOfFloors[i]);
    }
    sheet.AddSum(CScheduleSum{schedule.totals, {}, {}, L"totale dell'edificio"}, {first, last});
    sheet.Finish(last);
}

template <class COLUMN, class ITEM>
void WriteBill(CWorkbook& book, const char* name, const std::vector<COLUMN>& columns,
               const std::vector<ITEM>& items, int count, int missing = 0)
{
    CSheetWriter sheet(book, name, columns, 0);
    const Row first = sheet.NextRow();
    for (const ITEM& item : items) {
        sheet.AddLine(item, false);
    }
    const Row last = sheet.NextRow() - 1;
    sheet.AddSum(CBillSum{L"Totale", count}, {first, last});
    if (missing > 0) {
        sheet.AddSum(CBillSum{kMissingInBill, missing}, {1, 0});
    }
    sheet.Finish(last);
}

} // namespace

std::string FormatScheduleXlsx(const CSchedule& schedule)
{
    CWorkbook book(schedule.strBuilding);
    WriteRooms(book, schedule);
    const CRadiatorBill radiators = MakeRadiatorBill(schedule);
    WriteBill(book, "Ordine corpi scaldanti", RadiatorBillColumns(), radiators.items,
              radiators.nRadiators);
    const CValveBill valves = MakeValveBill(schedule);
    WriteBill(book, "Ordine valvole", BillColumns(), valves.items, valves.nValves, valves.nMissing);
    return book.Take();
}

} // namespace workbench
