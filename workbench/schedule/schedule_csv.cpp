#include "workbench/schedule/schedule_csv.h"

#include "platform/decimal.h"
#include "platform/encoding.h"
#include "platform/format.h"
#include "workbench/building/printable.h"
#include "workbench/schedule/schedule_columns.h"

#include <algorithm>
#include <charconv>
#include <cwctype>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

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

constexpr wchar_t kByteOrderMark = L'\ufeff';

bool IsNumber(const CString& text)
{
    const std::string ascii = Utf8FromWide(text);
    const char* const first = ascii.data() + (ascii.starts_with('+') ? 1 : 0);
    const char* const last = ascii.data() + ascii.size();
    double value = 0.0;
    const auto [end, error] = FromChars(first, last, value);
    return error == std::errc() && end == last;
}

/// With these, formulas begin.
constexpr wchar_t kSigns[] = L"=+-@";

/// Spreadsheets calculate a text that begins like a formula, and a file from a stranger could so
/// reach out to the network. The sign in front of it makes it a text again; numbers stay.
CString Defused(const CString& text)
{
    const bool isFormula = !text.empty() && CString(kSigns).find(text[0]) != CString::npos;
    return (isFormula && !IsNumber(text) ? L"'" : L"") + Printable(text);
}

bool IsTruthValue(const CString& text)
{
    const auto isSame = [&text](std::wstring_view word) {
        return std::ranges::equal(text, word, {}, [](wchar_t c) {
            return static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
        });
    };
    return std::ranges::any_of(
        std::initializer_list<std::wstring_view>{L"VERO", L"FALSO", L"TRUE", L"FALSE"}, isSame);
}

/// True for whatever a spreadsheet might take for something else than a text and write anew in its
/// own way. Numbers, dates and times in all their forms have a digit: "0200010115…", "1.01",
/// "1-set", "3 mar", "2E5"; "#N/D" is an error.
bool IsAtRisk(const CString& text)
{
    /// No formula holds a longer text, and nothing as long is anything but a text.
    constexpr std::size_t longest = 255;
    const auto isBlank = [](wchar_t c) { return std::iswspace(static_cast<wint_t>(c)) != 0; };
    return !text.empty() && text.size() <= longest &&
           (text.find_first_of(L"0123456789") != CString::npos || IsTruthValue(text) ||
            (CString(kSigns) + L"#").find(text.front()) != CString::npos || isBlank(text.front()) ||
            isBlank(text.back()));
}

/// A formula whose value is the text.
CString Kept(const CString& text)
{
    CString quoted;
    for (const wchar_t c : Printable(text)) {
        quoted += c == L'"' ? L"\"\"" : CString(1, c);
    }
    return L"=\"" + quoted + L"\"";
}

/// Writes the lines of one file.
class CCsvWriter
{
public:
    explicit CCsvWriter(CsvForm form) : m_form(form)
    {
        if (form == CsvForm::spreadsheet) {
            m_text += kByteOrderMark;
        }
    }

    void AddHeadings()
    {
        std::vector<CString> headings;
        ForEachShown(ScheduleColumns(), Output::csv,
                     [&](const auto& column, const CColumnLook& look) {
                         headings.push_back(column.HeadingOf(look));
                     });
        m_text += JoinLine(headings);
    }

    void AddRow(const CScheduleFloor& floor, const CScheduleRow& row)
    {
        m_text += JoinLine(MakeCells<CString>(ScheduleColumns(), Output::csv,
                                              CScheduleLine{floor.strName, row, {}}, !row.bErster,
                                              FieldFormat()));
    }

    void AddTotals(const CString& floor, const CString& status, const CScheduleTotals& totals)
    {
        m_text +=
            JoinLine(MakeSumCells<CString>(ScheduleColumns(), Output::csv,
                                           CScheduleSum{totals, floor, {}, status}, FieldFormat()));
    }

    CString TakeText() { return std::move(m_text); }

private:
    std::function<CString(const CNumberForm&, const CCell&)> FieldFormat() const
    {
        return [this](const CNumberForm& form, const CCell& cell) {
            const auto* const number = std::get_if<double>(&cell);
            const auto* const text = std::get_if<CString>(&cell);
            if (number) {
                return FormatNumber(form, *number);
            }
            return text ? FormatText(*text) : CString();
        };
    }

    CString FormatNumber(const CNumberForm& form, double value) const
    {
        CString number = form.nFileDecimals == kAllDecimals
                             ? FormatExact(value)
                             : FormatFixed(value, form.nFileDecimals);
        if (m_form == CsvForm::spreadsheet) {
            ReplaceAll(number, L'.', L',');
        }
        return number;
    }

    CString FormatText(const CString& text) const
    {
        return m_form == CsvForm::spreadsheet && IsAtRisk(text) ? Kept(text) : Defused(text);
    }

    CsvForm m_form;
    CString m_text;
};

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

CString FormatScheduleCsv(const CSchedule& schedule, CsvForm form)
{
    CCsvWriter csv(form);
    csv.AddHeadings();
    for (const CScheduleFloor& floor : schedule.floors) {
        for (const CScheduleRow& row : floor.rows) {
            csv.AddRow(floor, row);
        }
    }
    for (const CScheduleFloor& floor : schedule.floors) {
        csv.AddTotals(floor.strName, L"totale del piano", floor.totals);
    }
    csv.AddTotals({}, L"totale dell'edificio", schedule.totals);
    return csv.TakeText();
}

} // namespace workbench
