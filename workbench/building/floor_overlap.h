#pragma once

#include "workbench/building/building.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace workbench {

/// By how many millimetres the rectangles lie over each other, in the direction in which it is
/// less; 0 or less if they do not.
double OverlapOf(const CFloorRect& a, const CFloorRect& b);

/// Two rectangles of a list, by their index.
struct CFloorOverlap
{
    std::size_t nFirst = 0;
    std::size_t nSecond = 0;
};

/// Two rectangles that lie over each other by more than `allowed`, which is not negative; nothing
/// if there are no two. The first one begins in the west of the second one, or on the same line and
/// stands before it in the list. The time grows little faster than the count of rectangles, however
/// they lie.
std::optional<CFloorOverlap> FindOverlap(const std::vector<CFloorRect>& rects, double allowed);

} // namespace workbench
