#pragma once

#include "workbench/dxf/dxf_drawing.h"

namespace workbench {

/// The blocks of the sample radiators.
CDxfDrawing MakeRadiatorBlocks();

} // namespace workbench
