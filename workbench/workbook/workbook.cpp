#include "workbench/workbook/workbook.h"

#include "platform/descriptor.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "platform/temporary_places.h"
#include "platform/whole_file.h"
#include "workbench/building/printable.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <locale.h>
#include <system_error>

namespace workbench {

namespace {

/// The format ends a cell's text here.
constexpr std::size_t kLongestText = 32767;

constexpr lxw_color_t kHeadingFill = 0xe1e6ec;

constexpr std::uint8_t kPaperA4 = 9;

/// The earliest time of a file in an archive: the start of 1980.
constexpr std::time_t kFirstDayOfArchives = 315532800;

/// The library prints numbers by the process locale, but the file has points in every country.
class CPointNumbers
{
public:
    CPointNumbers()
        : m_classic(newlocale(LC_ALL_MASK, "C", nullptr)), m_before(uselocale(m_classic))
    {
    }
    ~CPointNumbers()
    {
        uselocale(m_before);
        freelocale(m_classic);
    }
    CPointNumbers(const CPointNumbers&) = delete;
    CPointNumbers& operator=(const CPointNumbers&) = delete;

private:
    locale_t m_classic;
    locale_t m_before;
};

/// XML has no sign for these, nor for the bytes that the private codes of file names stand for, and
/// a file with one opens nowhere.
bool IsRefused(wchar_t c)
{
    const auto code = std::char_traits<wchar_t>::to_int_type(c);
    const bool isSurrogate = code >= 0xd800 && code < 0xe000;
    const bool isByte = code >= 0xf780 && code < 0xf800;
    return isSurrogate || isByte || code == 0xfffe || code == 0xffff || code > 0x10ffff;
}

std::string CellText(const CString& text)
{
    CString shown = Printable(text.substr(0, kLongestText));
    std::ranges::replace_if(shown, IsRefused, L'?');
    return Utf8FromWide(shown);
}

/// How a spreadsheet is to show the numbers of a column.
std::string NumberFormat(const CNumberForm& form)
{
    if (form.nDecimals == kAllDecimals) {
        return "General";
    }
    const std::string digits =
        form.nDecimals > 0 ? "0." + std::string(static_cast<std::size_t>(form.nDecimals), '0')
                           : "0";
    if (form.bSign) {
        return "+" + digits + ";-" + digits + ";" + digits;
    }
    return form.bHideZero ? digits + ";-" + digits + ";" : digits;
}

} // namespace

/// The library writes to a file by its name and to nothing else.
class CWorkbook::CTemporaryFile
{
public:
    CTemporaryFile()
    {
        std::error_code error;
        const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
        if (error) {
            throw CFileException::FromErrno(ErrnoOf(error), L"TMPDIR");
        }
        std::filesystem::path place;
        const int file = MakeUnusedPlace(folder, place);
        if (file < 0) {
            throw CFileException::FromErrno(errno, TextFromPath(folder));
        }
        CloseDescriptor(file);
        m_strPath = place.string();
    }
    ~CTemporaryFile()
    {
        std::error_code error;
        std::filesystem::remove(m_strPath, error);
    }
    CTemporaryFile(const CTemporaryFile&) = delete;
    CTemporaryFile& operator=(const CTemporaryFile&) = delete;

    const char* Name() const { return m_strPath.c_str(); }
    CString Path() const { return TextFromPath(m_strPath); }
    std::string Folder() const { return std::filesystem::path(m_strPath).parent_path().string(); }

private:
    std::string m_strPath;
};

CWorkbook::CWorkbook(const CString& title) : m_file(std::make_unique<CTemporaryFile>())
{
    // The library does not look whether its drafts were written; beside the file that grows out of
    // them, a disk that is full for them is full for it as well, and that is told.
    std::string folder = m_file->Folder();
    lxw_workbook_options options = {};
    options.tmpdir = folder.data();
    m_pBook = workbook_new_opt(m_file->Name(), &options);
    std::string text = CellText(title);
    lxw_doc_properties properties = {};
    properties.title = text.data();
    // The same schedule gives the same bytes whenever it is written.
    properties.created = kFirstDayOfArchives;
    workbook_set_properties(m_pBook, &properties);
}

CWorkbook::~CWorkbook()
{
    if (m_pBook) {
        lxw_workbook_free(m_pBook);
    }
}

void CWorkbook::AddSheet(const char* name, std::uint16_t firstMoving)
{
    m_pSheet = workbook_add_worksheet(m_pBook, name);
    worksheet_freeze_panes(m_pSheet, 1, firstMoving);
    worksheet_repeat_rows(m_pSheet, 0, 0);
    worksheet_set_landscape(m_pSheet);
    worksheet_set_paper(m_pSheet, kPaperA4);
    // One page across, as many as it takes downwards.
    worksheet_fit_to_pages(m_pSheet, 1, 0);
}

lxw_format* CWorkbook::FormatOf(const std::string& numberFormat, Look look)
{
    lxw_format*& format = m_formats[{numberFormat, look}];
    if (format) {
        return format;
    }
    format = workbook_add_format(m_pBook);
    format_set_num_format(format, numberFormat.c_str());
    if (look != Look::plain) {
        format_set_bold(format);
    }
    if (look == Look::heading) {
        format_set_bg_color(format, kHeadingFill);
        format_set_bottom(format, LXW_BORDER_THIN);
    }
    if (look == Look::sum) {
        format_set_top(format, LXW_BORDER_THIN);
    }
    return format;
}

void CWorkbook::Text(std::uint32_t row, std::uint16_t column, const CString& text, Look look)
{
    lxw_format* const format = FormatOf("@", look);
    if (text.empty()) {
        worksheet_write_blank(m_pSheet, row, column, look == Look::plain ? nullptr : format);
    } else {
        worksheet_write_string(m_pSheet, row, column, CellText(text).c_str(), format);
    }
}

void CWorkbook::Number(std::uint32_t row, std::uint16_t column, double number,
                       const CNumberForm& form, Look look)
{
    if (std::isfinite(number)) {
        worksheet_write_number(m_pSheet, row, column, number, FormatOf(NumberFormat(form), look));
    }
}

void CWorkbook::Formula(std::uint32_t row, std::uint16_t column, const std::string& formula,
                        double value, const CNumberForm& form, Look look)
{
    worksheet_write_formula_num(m_pSheet, row, column, ("=" + formula).c_str(),
                                FormatOf(NumberFormat(form), look),
                                std::isfinite(value) ? value : 0.0);
}

void CWorkbook::Width(std::uint16_t column, double characters)
{
    worksheet_set_column(m_pSheet, column, column, characters, nullptr);
}

void CWorkbook::Filter(std::uint32_t lastRow, std::uint16_t lastColumn)
{
    worksheet_autofilter(m_pSheet, 0, 0, lastRow, lastColumn);
}

std::string CWorkbook::Take()
{
    const CPointNumbers points;
    errno = 0;
    const lxw_error error = workbook_close(std::exchange(m_pBook, nullptr));
    if (error != LXW_NO_ERROR) {
        throw CFileException::FromErrno(errno != 0 ? errno : EIO, m_file->Path());
    }
    return ReadWholeFile(m_file->Path()).value();
}

std::string CellName(std::uint32_t row, std::uint16_t column)
{
    char name[LXW_MAX_CELL_NAME_LENGTH];
    lxw_rowcol_to_cell(name, row, column);
    return name;
}

} // namespace workbench
