#pragma once

#include "workbench/building/building.h"

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// The "project" of a building, or an empty one where the building has none. Raises
/// CContentException.
CProject ReadProject(CJsonFields& building);

/// Writes it into the building's object, as far as it says anything.
void WriteProject(CJsonWriter& writer, const CProject& project);

} // namespace workbench
