#pragma once

#include "workbench/schedule/valve_bill.h"
#include "workbench/schedule/valve_selection.h"

#include <vector>

namespace workbench {

/// Stands for a valve that is wanted and was not fetched.
CString MissingValveText(ValveStatus status);

/// The lines under a room of the schedule that name its valves, and then those that say why one is
/// missing; none if the room has no valves. Names are cut to keep a line below 156 places.
std::vector<CString> FormatValves(const CRoomValves& valves);

/// The kv tables of the valves that were found side by side, the supply valve's at the left, under
/// the places where FormatValves() names them.
std::vector<CString> FormatKvTables(const CRoomValves& valves);

/// The bill as a table with its sum below; empty if no valve is wanted. Lines end in a line feed.
CString FormatValveBill(const CValveBill& bill);

} // namespace workbench
