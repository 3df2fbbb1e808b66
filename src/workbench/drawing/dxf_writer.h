#pragma once

#include "workbench/drawing/dxf_drawing.h"

#include <string>

/// The bytes of a text DXF file with the drawing's layers and blocks, in the oldest version of the
/// format that CAD programs still share, so that all of them read it. ParseDxf() gives the same
/// drawing back if names are of code page 1252 without control characters and 255 characters at
/// most, and numbers finite and within 1e9.
std::string WriteDxf(const CDxfDrawing& drawing);
