#pragma once

#include "workbench/dxf/dxf_drawing.h"

#include <string>

namespace workbench {

/// The bytes of a text DXF file with the drawing, in metres, in the oldest version of the format in
/// which every object has a handle and an owner (AC1015): all CAD programs read it and can refer to
/// its objects. Attributes are hidden. What code page 1252 lacks is written as "\U+xxxx".
/// ParseDxf() gives the same drawing back if names are not empty and take 255 bytes at most, other
/// texts 1000, numbers are finite and within 1e9, and curves have a radius.
std::string WriteDxf(const CDxfDrawing& drawing);

} // namespace workbench
