#pragma once

#include "workbench/dxf/dxf_drawing.h"

/// The blocks of the sample radiators.
CDxfDrawing MakeRadiatorBlocks();
