#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// The rooms of a large building with their radiators (tools/make_building_samples.h), all on one
/// floor, wing beside wing. Some radiators are too weak, and some rooms have none.
CBuilding MakeLargeFloor(std::size_t rooms);

} // namespace workbench
