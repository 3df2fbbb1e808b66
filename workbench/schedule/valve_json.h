#pragma once

#include "workbench/building/json_value.h"
#include "workbench/schedule/valve_selection.h"

namespace workbench {

/// "supply" and "return" with key and status each; a valve that was found has its whole record and
/// its kv rows. Empty if the room has no valves.
CJsonObject MakeValvesJson(const CRoomValves& valves);

} // namespace workbench
