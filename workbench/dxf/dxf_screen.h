#pragma once

#include "platform/file_fault.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace workbench {

/// What of a file is wanted.
enum class DxfContent
{
    layersAndBlocks,
    wholeDrawing,
};

/// The wanted part of a DXF file in a form that dxflib can be trusted with: every group is whole
/// and short, every number finite and in range, every count true, every entity of a section of
/// blocks in a block. What dxflib would pass over or not give back as it was goes by another name:
///  - the definition of an attribute is an ATTRIB, and stands outside any INSERT;
///  - the angle of a text is its width factor, which dxflib does not turn into radians.
struct CScreenedDxf
{
    /// Groups of two lines each, ending with that of the end of the file.
    std::string strText;
    /// For each group the line of the file on which the record it belongs to starts.
    std::vector<int> lines;
    /// Names are UTF-8, else code page 1252.
    bool bUtf8 = false;
};

/// Screens a file. dxflib itself cannot be handed any bytes: an over-long line makes it loop, a
/// polyline allocates whatever count it states, a hatch without a boundary aborts the process.
/// Throws CFileFault at the first line that is no DXF.
CScreenedDxf ScreenDxf(std::span<const std::uint8_t> bytes, DxfContent content);

} // namespace workbench
