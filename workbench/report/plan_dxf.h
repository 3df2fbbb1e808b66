#pragma once

#include "workbench/building/building.h"
#include "workbench/drawing/block_library.h"

#include <string>

namespace workbench {

/// The plan of the building as the bytes of a DXF file (docs/export-formats.md): all floors beside
/// each other, in metres, on layers and with blocks and attributes. `radiators` has the radiators'
/// blocks, `valves`, which may be null, those of the valves.
std::string FormatPlanDxf(const CBuilding& building, const CDxfDrawing& radiators,
                          const CBlockLibrary* valves);

} // namespace workbench
