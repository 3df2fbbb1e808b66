#pragma once

#include "workbench/schedule/schedule.h"

#include <string>

namespace workbench {

/// The schedule as a JSON text in UTF-8, version 1. A room has its wishes, its status and, where
/// one was found, its radiator: under "radiator" the chosen one, under "nearest" one that does not
/// fit. A chosen one may have "valves". What a room has beyond one radiator is in
/// "furtherRadiators". The bills of all radiators and of all valves stand at the top.
std::string FormatScheduleJson(const CSchedule& schedule);

} // namespace workbench
