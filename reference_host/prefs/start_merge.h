#pragma once

#include "frame/vdi6030_start.h"

namespace reference_host {

/// The start values to be stored where a user has changed `known` to `wanted` while the store came
/// to hold `stored`: what he did not change stays as it is stored. What is chosen together stays
/// together: the place in the catalogue, the heating system, the distances, connection and valves.
VDI6030START MergeStart(const VDI6030START& known, const VDI6030START& wanted,
                        const VDI6030START& stored);

} // namespace reference_host
