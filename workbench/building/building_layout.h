#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// Makes up a floor plan for rooms of a file that has none: two rows along a corridor from west to
/// east, the first place of every room in the middle of its outer wall, southern or northern. A
/// room is as large as its demand suggests, and at least as wide as that place. The same rooms
/// always give the same plan.
void LayOutFloor(std::vector<CRoom>& rooms);

} // namespace workbench
