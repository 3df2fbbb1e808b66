#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// How a room stands: how well its heat demand is met, and by radiators of what size.
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
    /// A radiator does not fit its place, whatever it gives.
    tooLarge,
    /// The radiators fit, and all of them together exceed what is asked by more than the building
    /// allows.
    oversized,
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

/// The room must be one of the building, which says what radiators keep free and may exceed.
Coverage CoverageOf(const CBuilding& building, const CRoom& room);

/// True for a room that a designer has to look after: lacking, empty or too large.
bool IsOpen(Coverage coverage);

/// True where the demand is met or exceeded by radiators of a size that ought to be another.
bool IsMissized(Coverage coverage);

/// In a few words for the user.
CString GetCoverageText(Coverage coverage);

/// What a room lacks or has too much of, in figures; empty for one that is as it should be.
CString DescribeCoverage(const CBuilding& building, const CRoom& room);

/// What is missing of the output that is asked for, both in watts: "mancano 350 W (35,0 %)".
CString DescribeLack(double missing, double asked);

/// What of a radiator is beyond its place, for example "altezza 900 mm, consentiti 720 mm"; empty
/// if it fits.
CString DescribeExcess(const CBuilding& building, const CRoom& room,
                       const CPlacedRadiator& radiator);

} // namespace workbench
