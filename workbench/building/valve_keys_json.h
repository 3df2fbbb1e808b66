#pragma once

#include "workbench/building/building.h"

namespace workbench {

class CJsonFields;
class CJsonWriter;

/// The "valves" that an object of a building file asks for, and those of `fallback` where it says
/// nothing of one. A number too short to be searched for is refused.
CValveKeys ReadValveKeys(CJsonFields& owner, CValveKeys fallback);

/// Writes them, as far as they differ from `fallback`.
void WriteValveKeys(CJsonWriter& writer, const CValveKeys& keys, const CValveKeys& fallback);

/// The valves of a placed radiator, which were chosen already and may be any.
CValveKeys ReadChosenValveKeys(CJsonFields& owner);

} // namespace workbench
