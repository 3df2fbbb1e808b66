#include "workbench/schedule/schedule_csv.h"

#include "platform/encoding.h"
#include "platform/format.h"
#include "workbench/building/printable.h"
#include "workbench/schedule/schedule_columns.h"

#include <charconv>
#include <string>
#include <system_error>

namespace workbench {

namespace {

CString JoinLine(const std::vector<CString>& fields)
{
    CString line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        line += (i == 0 ? L"" : L";") + QuoteCsv(fields[i]);
    }
    return line + L"\r\n";
}

CString FormatHeadings()
{
    std::vector<CString> headings;
    ForEachShown(ScheduleColumns(), Output::csv, [&](const auto& column, const CColumnLook& look) {
        headings.push_back(column.HeadingOf(look));
    });
    return JoinLine(headings);
}

bool IsNumber(const CString& text)
{
    const std::string ascii = Utf8FromWide(text);
    const char* const first = ascii.data() + (ascii.starts_with('+') ? 1 : 0);
    const char* const last = ascii.data() + ascii.size();
    double value = 0.0;
    const auto [end, error] = std::from_chars(first, last, value);
    return error == std::errc() && end == last;
}

/// Spreadsheets calculate a text that begins like a formula, and a file from a stranger could so
/// reach out to the network. The sign in front of it makes it a text again; numbers stay.
CString Defused(const CString& text)
{
    const bool isFormula = !text.empty() && CString(L"=+-@").find(text[0]) != CString::npos;
    return (isFormula && !IsNumber(text) ? L"'" : L"") + Printable(text);
}

CString FormatField(const CNumberForm& form, const CCell& cell)
{
    if (const auto* const number = std::get_if<double>(&cell)) {
        return form.nFileDecimals == kAllDecimals ? FormatExact(*number)
                                                  : FormatFixed(*number, form.nFileDecimals);
    }
    const auto* const text = std::get_if<CString>(&cell);
    return text ? Defused(*text) : CString();
}

CString FormatRow(const CScheduleFloor& floor, const CScheduleRow& row)
{
    return JoinLine(MakeCells<CString>(ScheduleColumns(), Output::csv,
                                       CScheduleLine{floor.strName, row, {}}, !row.bErster,
                                       FormatField));
}

CString FormatTotals(const CString& floor, const CString& status, const CScheduleTotals& totals)
{
    return JoinLine(MakeSumCells<CString>(ScheduleColumns(), Output::csv,
                                          CScheduleSum{totals, floor, {}, status}, FormatField));
}

} // namespace

CString QuoteCsv(const CString& text)
{
    if (text.find_first_of(L";\"\r\n") == CString::npos) {
        return text;
    }
    CString quoted = L"\"";
    for (const wchar_t c : text) {
        quoted += c == L'"' ? L"\"\"" : CString(1, c);
    }
    return quoted + L"\"";
}

CString FormatScheduleCsv(const CSchedule& schedule)
{
    CString text = FormatHeadings();
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            text += FormatRow(floor, row);
        }
    }
    for (const CScheduleFloor& floor : schedule.floors) {
        text += FormatTotals(floor.strName, L"totale del piano", floor.totals);
    }
    return text + FormatTotals({}, L"totale dell'edificio", schedule.totals);
}

} // namespace workbench
