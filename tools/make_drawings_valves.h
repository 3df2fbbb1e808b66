#pragma once

#include "workbench/drawing/dxf_drawing.h"

/// The graphics of the sample valves.
CDxfDrawing MakeValveBlocks();
