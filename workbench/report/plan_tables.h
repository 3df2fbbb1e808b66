#pragma once

#include "workbench/report/report_table.h"
#include "workbench/schedule/schedule.h"

namespace workbench {

/// The tables of a plan's report. The widths of their columns suit paper of 297 mm.

/// Sums of the floors and of the building.
CReportTable MakeTotalsTable(const CSchedule& schedule);

/// Every radiator with its number and every room without one, with sums.
CReportTable MakeScheduleTable(const CSchedule& schedule);

/// Rooms that someone has to look after, and how much they lack.
CReportTable MakeOpenRoomsTable(const CSchedule& schedule);

/// Rooms with a radiator that does not fit its place, or with more output than the building allows,
/// and by how much.
CReportTable MakeMissizedTable(const CSchedule& schedule);

/// The radiators to be ordered, with the order numbers of their catalogues.
CReportTable MakeRadiatorOrderTable(const CSchedule& schedule);

/// The valves to be ordered.
CReportTable MakeValveTable(const CSchedule& schedule);

} // namespace workbench
