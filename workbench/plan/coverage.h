#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// How well the heat demand of a room is met.
enum class Coverage
{
    /// Nothing is asked of radiators.
    notNeeded,
    /// The radiators give what is asked of them, or miss it by no more than kCoverTolerance.
    covered,
    /// They give less.
    lacking,
    /// There is no radiator.
    empty,
};

/// Fraction of the need by which radiators may miss it.
inline constexpr double kCoverTolerance = 0.1;

/// Sum of the outputs of the room's radiators at design temperatures, in watts.
double OutputOf(const CRoom& room);

/// What is met of the room's demand, by radiators and by other heating, in watts.
double CoveredOf(const CRoom& room);

/// What is left of the demand, in watts; below 0 if more is met than asked.
double RemainderOf(const CRoom& room);

/// The least output that counts as giving what is asked, both in watts.
double WeakestOutput(double asked);

Coverage CoverageOf(const CRoom& room);

/// True for a room that a designer has to look after: lacking or empty.
bool IsOpen(Coverage coverage);

} // namespace workbench
