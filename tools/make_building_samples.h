#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// A building of many rooms, for tests and measurements: up to 200 rooms a floor, in rows along
/// corridors with courts between them, with demands, sizes, windows and products that differ. The
/// products are those of the sample catalogues, the valves those of the sample valves. The same
/// number of rooms always gives the same building; 1 is the least.
CBuilding MakeLargeBuilding(std::size_t rooms);

/// Puts a radiator at the first place of every room that has none, connected and with valves. Their
/// outputs are made up and cover the rooms.
void PlaceSampleRadiators(CBuilding& building);

} // namespace workbench
