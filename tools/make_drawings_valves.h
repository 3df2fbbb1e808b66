#pragma once

#include "workbench/dxf/dxf_drawing.h"

namespace workbench {

/// The graphics of the sample valves.
CDxfDrawing MakeValveBlocks();

} // namespace workbench
