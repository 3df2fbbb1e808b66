#pragma once

#include "workbench/dxf/dxf_drawing.h"
#include "workbench/dxf/dxf_screen.h"

#include <cstdint>
#include <span>
#include <variant>

namespace workbench {

/// Reads a drawing out of the bytes of a text DXF file of any version. Layers, blocks and what the
/// drawing shows keep the order of the file. LINE, CIRCLE, ARC, LWPOLYLINE and POLYLINE are taken,
/// without their z and in the plane they are drawn in; of a block also the definitions of its
/// attributes, and of the drawing TEXT and INSERT with its attributes. Everything else is left out,
/// and so are meshes, what stands in paper space, repetitions of an INSERT, and the blocks that CAD
/// programs make for themselves, whose names begin with "*". Of texts that are fitted between two
/// points or set off their base line the left end of the line is taken.
///
/// The first thing that makes no sense ends the reading with its fault: no DXF, a file cut short, a
/// number that is none or beyond 1e9, a curve without a radius, a block without a name or with
/// that of an earlier one, an attribute without one, a text of more than 1000 bytes.
/// The result does not depend on the locale of the process.
std::variant<CDxfDrawing, CFileFault> ParseDxf(std::span<const std::uint8_t> bytes,
                                               DxfContent content = DxfContent::wholeDrawing);

/// Reads a file of at most kLargestDrawing bytes. Files are libraries of blocks, as a rule, and
/// whatever their drawing shows does not count.
std::variant<CDxfDrawing, CFileFault> ReadDxfFile(const CString& path,
                                                  DxfContent content = DxfContent::layersAndBlocks);

} // namespace workbench
