#pragma once

#include "workbench/building/building.h"

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// A radiator that stands in the plan, as building files have it. `places` is the number of places
/// of its room, at least 1.
CPlacedRadiator ReadPlacedRadiator(CJsonFields fields, std::size_t places);

/// Writes it as an item of a list.
void WritePlacedRadiator(CJsonWriter& writer, const CPlacedRadiator& radiator);

} // namespace workbench
