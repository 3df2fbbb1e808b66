#pragma once

#include "workbench/building/building.h"

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// The first version had no plan: a room had one window or wall and neither outline nor place.
inline constexpr int kVersionWithPlan = 2;

/// What all rooms of a building file have in common.
struct CRoomsOfFile
{
    int nVersion = kVersionWithPlan;
    CHeatingSystem system;
    CClearance clearance;
    CValveKeys valves;
};

/// A room of a building file. One of a version without plan has no outline yet, and its place no
/// position.
CRoom ReadRoom(CJsonFields fields, const CRoomsOfFile& common);

/// Writes it as an item of a list; of its valves what the building's do not say already.
void WriteRoom(CJsonWriter& writer, const CRoom& room, const CValveKeys& valvesOfBuilding);

} // namespace workbench
