#pragma once

#include "workbench/schedule/columns.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>

struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

namespace workbench {

/// A workbook (.xlsx) on its way to a spreadsheet, written sheet by sheet. Rows and columns count
/// from 0. Texts are texts there, whatever they look like; numbers are the same everywhere.
class CWorkbook
{
public:
    /// How the cells of a line look.
    enum class Look
    {
        plain,
        heading,
        sum,
    };

    /// Raises CFileException if the system has no place for the file that is being made.
    explicit CWorkbook(const CString& title);
    ~CWorkbook();
    CWorkbook(const CWorkbook&) = delete;
    CWorkbook& operator=(const CWorkbook&) = delete;

    /// The sheet that is written from now on. Its first row and the columns before `firstMoving`
    /// stay in sight and stand on every printed page, which lies across.
    void AddSheet(const char* name, std::uint16_t firstMoving);

    /// A cell; an empty text and a number that is none leave it empty.
    void Text(std::uint32_t row, std::uint16_t column, const CString& text, Look look);
    void Number(std::uint32_t row, std::uint16_t column, double number, const CNumberForm& form,
                Look look);

    /// A cell that calculates. `value` is what comes out, for programs that only read.
    void Formula(std::uint32_t row, std::uint16_t column, const std::string& formula, double value,
                 const CNumberForm& form, Look look);

    /// The column's width in characters.
    void Width(std::uint16_t column, double characters);

    /// Lets the user pick rows by what stands in these columns.
    void Filter(std::uint32_t lastRow, std::uint16_t lastColumn);

    /// The bytes of the file, once all is written. Raises CFileException.
    std::string Take();

private:
    class CTemporaryFile;

    lxw_format* FormatOf(const std::string& numberFormat, Look look);

    std::unique_ptr<CTemporaryFile> m_file;
    /// Null once it is closed.
    lxw_workbook* m_pBook = nullptr;
    lxw_worksheet* m_pSheet = nullptr;
    std::map<std::pair<std::string, Look>, lxw_format*> m_formats;
};

/// A cell's name in formulas, such as "B7".
std::string CellName(std::uint32_t row, std::uint16_t column);

} // namespace workbench
