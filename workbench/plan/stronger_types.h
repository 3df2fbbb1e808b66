#pragma once

#include "workbench/plan/radiator_wish.h"

#include <vector>

namespace workbench {

/// The products of the same maker and kind as that of the wishes that could give more than it at
/// their places, all together: the slimmest first, of equally deep ones the weakest. The catalogue
/// must have been read.
std::vector<CRadiatorProduct> FindStrongerTypes(const std::vector<CRadiatorWish>& wishes);

} // namespace workbench
