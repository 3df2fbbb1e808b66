#pragma once

#include "platform/text.h"

#include <functional>
#include <utility>
#include <variant>
#include <vector>

namespace workbench {

/// Height, depth and length in millimetres, shown in one cell.
struct CMeasures
{
    double hoehe = 0.0;
    double tiefe = 0.0;
    double laenge = 0.0;
};

/// What a cell holds, before an output gives it its form. The first one is the empty cell.
using CCell = std::variant<std::monostate, CString, double, CMeasures>;

/// The double with the shortest decimal digits that stand for the float: 0.88 for 0.88F.
double DecimalOf(float value);

/// Stands for as many decimals as the number has.
inline constexpr int kAllDecimals = -1;

/// How the numbers of a column are written.
struct CNumberForm
{
    /// Where people read them.
    int nDecimals = 0;
    /// In a file for other programs.
    int nFileDecimals = kAllDecimals;
    /// People see a plus in front of what is above 0.
    bool bSign = false;
    /// People see nothing where there is nothing to count.
    bool bHideZero = false;
};

/// The tables that show a list of columns or some of them.
enum class Output
{
    /// The CSV file, and the sheets of the workbook.
    csv,
    console,
    /// The table of a valve with bypass, which has other columns than that of any other valve.
    consoleBypass,
    /// The long table of the report.
    paper,
    /// Its sums, a line a floor.
    paperSums,
    /// Its rooms that someone has to look after.
    paperOpen,
    /// Its rooms with radiators of a size that ought to be another.
    paperMissized,
};

/// How a column looks in one output.
struct CColumnLook
{
    Output output = Output::csv;
    CString strHeading;
    /// On the console the most places that a text takes, on paper millimetres.
    double breite = 0.0;
    bool bRight = false;
    /// The unit follows the heading.
    bool bUnit = true;
    /// Only the first line of a room shows the cell.
    bool bOnce = false;
    /// Stands in an empty cell of a line; those of sums stay empty.
    const wchar_t* lpszNone = L"";
};

/// The object of a JSON file in which a value stands.
enum class JsonPart
{
    none,
    /// Of a room, and of the sums.
    room,
    /// Wherever a product is named.
    product,
    radiator,
    /// What is told of the room with its first radiator.
    firstRadiator,
    /// Of an item in a list: a valve to be ordered, a row of a table.
    item,
};

/// A column: what its cells hold and how every output shows them. An output takes its columns in
/// the order of their list.
template <class LINE, class SUM>
class CColumn
{
public:
    using Value = std::function<CCell(const LINE&)>;

    explicit CColumn(Value value) : m_value(std::move(value)) {}

    /// What a line of sums holds; without it nothing.
    CColumn& Total(std::function<CCell(const SUM&)> total)
    {
        m_total = std::move(total);
        return *this;
    }

    /// What a spreadsheet calculates in a line of sums: "{}" stands for the cells above, and
    /// "{name}" for the line's own cell in the column that JSON calls so. Without it the line has
    /// the sum as it is.
    CColumn& Formula(const char* formula)
    {
        m_lpszFormula = formula;
        return *this;
    }

    /// The name of the value in JSON and the object that has it; of the sums all that are numbers
    /// and have a name.
    CColumn& Json(const char* name, JsonPart part = JsonPart::none)
    {
        m_lpszJson = name;
        m_json = part;
        return *this;
    }

    CColumn& Unit(const wchar_t* unit)
    {
        m_lpszUnit = unit;
        return *this;
    }

    CColumn& Form(const CNumberForm& form)
    {
        m_form = form;
        return *this;
    }

    CColumn& Looks(std::vector<CColumnLook> looks)
    {
        m_looks = std::move(looks);
        return *this;
    }

    CCell ValueOf(const LINE& line) const { return m_value(line); }
    CCell TotalOf(const SUM& sum) const { return m_total ? m_total(sum) : CCell(); }

    /// Null where the sum is no formula.
    const char* GetFormula() const { return m_lpszFormula; }

    /// Null for a column that JSON does not have.
    const char* JsonName() const { return m_lpszJson; }
    JsonPart GetJsonPart() const { return m_json; }
    const CNumberForm& GetForm() const { return m_form; }
    const std::vector<CColumnLook>& GetLooks() const { return m_looks; }

    /// With its unit, where the look shows it.
    CString HeadingOf(const CColumnLook& look) const
    {
        const CString unit = look.bUnit ? m_lpszUnit : L"";
        return look.strHeading + (look.strHeading.empty() || unit.empty() ? L"" : L" ") + unit;
    }

private:
    Value m_value;
    std::function<CCell(const SUM&)> m_total;
    const char* m_lpszFormula = nullptr;
    const char* m_lpszJson = nullptr;
    JsonPart m_json = JsonPart::none;
    const wchar_t* m_lpszUnit = L"";
    CNumberForm m_form;
    std::vector<CColumnLook> m_looks;
};

/// Calls `take(column, look)` for every column that the output shows.
template <class COLUMN, class TAKE>
void ForEachShown(const std::vector<COLUMN>& columns, Output output, TAKE take)
{
    for (const COLUMN& column : columns) {
        for (const CColumnLook& look : column.GetLooks()) {
            if (look.output == output) {
                take(column, look);
            }
        }
    }
}

/// The cells of a line, one a column that the output shows. `format(form, cell)` makes their texts;
/// `isFurther` says that the line goes on with the room of the line before.
template <class TEXT, class LINE, class SUM, class FORMAT>
std::vector<TEXT> MakeCells(const std::vector<CColumn<LINE, SUM>>& columns, Output output,
                            const LINE& line, bool isFurther, FORMAT format)
{
    std::vector<TEXT> cells;
    ForEachShown(columns, output, [&](const auto& column, const CColumnLook& look) {
        CCell cell = look.bOnce && isFurther ? CCell() : column.ValueOf(line);
        if (std::holds_alternative<std::monostate>(cell)) {
            cell = CString(look.lpszNone);
        }
        cells.push_back(format(column.GetForm(), cell));
    });
    return cells;
}

/// The same for a line of sums.
template <class TEXT, class LINE, class SUM, class FORMAT>
std::vector<TEXT> MakeSumCells(const std::vector<CColumn<LINE, SUM>>& columns, Output output,
                               const SUM& sum, FORMAT format)
{
    std::vector<TEXT> cells;
    ForEachShown(columns, output, [&](const auto& column, const CColumnLook&) {
        cells.push_back(format(column.GetForm(), column.TotalOf(sum)));
    });
    return cells;
}

} // namespace workbench
