#pragma once

#include "workbench/drawing/dxf_drawing.h"

/// The blocks of the sample radiators.
CDxfDrawing MakeRadiatorBlocks();
