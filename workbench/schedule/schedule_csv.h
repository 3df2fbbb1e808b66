#pragma once

#include "workbench/schedule/schedule.h"

namespace workbench {

/// The schedule as CSV: a heading line, a line a row, then the totals of the floors and of the
/// building, told apart by the column "Stato". The line of a further radiator of a room leaves the
/// room's demand and deviation empty, so that columns may be summed. Fields are separated by ";"
/// and quoted where they need it; numbers have a point; lines end in CR LF.
CString FormatScheduleCsv(const CSchedule& schedule);

/// A text as one CSV field.
CString QuoteCsv(const CString& text);

} // namespace workbench
