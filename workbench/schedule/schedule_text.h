#pragma once

#include "workbench/schedule/schedule.h"

namespace workbench {

/// The schedule as a table for a terminal, with totals for each floor and the building and a list
/// of the rooms that stay without a radiator. The valves stand below their room, with `kvTables`
/// followed by their kv rows, and their bill at the end. Lines end in a line feed.
CString FormatScheduleText(const CSchedule& schedule, bool kvTables);

} // namespace workbench
