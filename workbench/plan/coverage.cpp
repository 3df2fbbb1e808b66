#include "workbench/plan/coverage.h"

#include <numeric>

namespace workbench {

double OutputOf(const CRoom& room)
{
    return std::accumulate(
        room.heizkoerper.begin(), room.heizkoerper.end(), 0.0,
        [](double sum, const CPlacedRadiator& radiator) { return sum + radiator.daten.Leistung; });
}

double CoveredOf(const CRoom& room)
{
    return room.gedeckt + OutputOf(room);
}

double RemainderOf(const CRoom& room)
{
    return room.bedarf - CoveredOf(room);
}

double WeakestOutput(double asked)
{
    return (1.0 - kCoverTolerance) * asked;
}

Coverage CoverageOf(const CRoom& room)
{
    if (room.GetLeistung() <= 0.0) {
        return Coverage::notNeeded;
    }
    if (room.heizkoerper.empty()) {
        return Coverage::empty;
    }
    return OutputOf(room) >= WeakestOutput(room.GetLeistung()) ? Coverage::covered
                                                               : Coverage::lacking;
}

bool IsOpen(Coverage coverage)
{
    return coverage == Coverage::lacking || coverage == Coverage::empty;
}

} // namespace workbench
