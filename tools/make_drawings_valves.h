#pragma once

#include "workbench/dxf/dxf_drawing.h"

/// The graphics of the sample valves.
CDxfDrawing MakeValveBlocks();
