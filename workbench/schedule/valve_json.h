#pragma once

#include "workbench/schedule/valve_selection.h"

#include <QJsonObject>

namespace workbench {

/// "supply" and "return" with key and status each; a valve that was found has its whole record and
/// its kv rows. Empty if the room has no valves.
QJsonObject MakeValvesJson(const CRoomValves& valves);

} // namespace workbench
