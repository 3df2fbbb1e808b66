#pragma once

#include "workbench/schedule/schedule.h"

#include <string>

namespace workbench {

/// The schedule as the bytes of a workbook (.xlsx): a sheet with the columns and lines of the CSV
/// file, then a sheet each of the radiators and of the valves that are to be ordered. Sums are
/// formulas over the lines above them. Raises CFileException if the system has no place to make it.
std::string FormatScheduleXlsx(const CSchedule& schedule);

} // namespace workbench
