#pragma once

#include <string>
#include <vector>

namespace workbench {

/// A sample drawing: its file name and its bytes.
struct CSampleDrawing
{
    const char* lpszFile = nullptr;
    std::string strBytes;
};

/// The drawings below data/drawing: radiators, seen from above ("PIANTA") and from the front
/// ("VISTA") with the middle as base point, and the graphics of valves, whose base point is where
/// the valve meets the radiator. All in metres.
std::vector<CSampleDrawing> MakeSampleDrawings();

} // namespace workbench
