#pragma once

#include "host/drawing_records.h"
#include "workbench/drawing/connection_symbol.h"

#include <vector>

namespace workbench {

/// The connection points of a drawn radiator as marks in the plan, in the colours of their trades.
/// Marks that would cover each other stand side by side.
std::vector<CConnectionMark> ConnectionMarksOf(TGA_LIST& record);

} // namespace workbench
