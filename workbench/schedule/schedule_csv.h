#pragma once

#include "workbench/schedule/schedule.h"

namespace workbench {

/// For whom a CSV file is written.
enum class CsvForm
{
    /// A spreadsheet in Italy: it tells UTF-8 by the byte order mark, numbers by the comma, and
    /// leaves a text alone that it might take for a number, a date or a truth value, such as a
    /// valve's code of 36 digits, a room "1.01" or "3 mar", since the field of every text with a
    /// digit, and some more, is a formula of that text.
    spreadsheet,
    /// Programs: no mark, numbers with a point, codes as they are.
    plain,
};

/// The schedule as CSV: a heading line, a line a row, then the totals of the floors and of the
/// building, told apart by the column "Stato". The line of a further radiator of a room leaves the
/// room's demand and deviation empty, so that columns may be summed. Fields are separated by ";"
/// and quoted where they need it; lines end in CR LF. No text of a building or of a catalogue is
/// calculated by a spreadsheet, whatever the form.
CString FormatScheduleCsv(const CSchedule& schedule, CsvForm form = CsvForm::spreadsheet);

/// A text as one CSV field.
CString QuoteCsv(const CString& text);

} // namespace workbench
