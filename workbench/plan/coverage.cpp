#include "workbench/plan/coverage.h"

#include "workbench/building/user_text.h"
#include "workbench/plan/placement.h"

#include <algorithm>
#include <numeric>

namespace workbench {

namespace {

bool HasTooLarge(const CBuilding& building, const CRoom& room)
{
    return std::ranges::any_of(room.heizkoerper, [&](const CPlacedRadiator& radiator) {
        return !FitsPlace(room, room.plaetze.at(radiator.nPlatz), building.abstaende,
                          radiator.daten);
    });
}

bool ExceedsLimit(const CBuilding& building, const CRoom& room)
{
    const double asked = room.GetLeistung();
    return 100.0 * (OutputOf(room) - asked) > building.ueberschussMax * asked;
}

CString DescribeSurplus(const CBuilding& building, const CRoom& room)
{
    const double asked = room.GetLeistung();
    return FormatWatts(-RemainderOf(room)) + L" in più (" +
           FormatPercent(100.0 * (OutputOf(room) - asked) / asked) + L", limite " +
           FormatNumber(building.ueberschussMax) + L" %)";
}

/// What does not fit, and what that leaves of the demand.
CString DescribeTooLarge(const CBuilding& building, const CRoom& room)
{
    CString text;
    for (const CPlacedRadiator& radiator : room.heizkoerper) {
        const CString excess = DescribeExcess(building, room, radiator);
        const bool isNamed = room.heizkoerper.size() > 1 && !excess.empty();
        text = Joined(text, isNamed ? radiator.strTyp + L": " + excess : excess);
    }
    const bool isLacking = OutputOf(room) < WeakestOutput(room.GetLeistung());
    return Joined(text,
                  isLacking ? DescribeLack(RemainderOf(room), room.GetLeistung()) : CString());
}

} // namespace

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

Coverage CoverageOf(const CBuilding& building, const CRoom& room)
{
    if (HasTooLarge(building, room)) {
        return Coverage::tooLarge;
    }
    if (room.GetLeistung() <= 0.0) {
        return Coverage::notNeeded;
    }
    if (room.heizkoerper.empty()) {
        return Coverage::empty;
    }
    if (OutputOf(room) < WeakestOutput(room.GetLeistung())) {
        return Coverage::lacking;
    }
    return ExceedsLimit(building, room) ? Coverage::oversized : Coverage::covered;
}

bool IsOpen(Coverage coverage)
{
    return coverage == Coverage::lacking || coverage == Coverage::empty ||
           coverage == Coverage::tooLarge;
}

bool IsMissized(Coverage coverage)
{
    return coverage == Coverage::tooLarge || coverage == Coverage::oversized;
}

CString GetCoverageText(Coverage coverage)
{
    switch (coverage) {
    case Coverage::notNeeded:
        return L"nessun corpo scaldante necessario";
    case Coverage::covered:
        return L"coperto";
    case Coverage::lacking:
        return L"scarso";
    case Coverage::empty:
        return L"manca il corpo scaldante";
    case Coverage::tooLarge:
        return L"troppo grande per il posto";
    case Coverage::oversized:
        return L"sovradimensionato";
    }
    return {};
}

CString DescribeCoverage(const CBuilding& building, const CRoom& room)
{
    switch (CoverageOf(building, room)) {
    case Coverage::notNeeded:
    case Coverage::covered:
        break;
    case Coverage::lacking:
    case Coverage::empty:
        return DescribeLack(RemainderOf(room), room.GetLeistung());
    case Coverage::tooLarge:
        return DescribeTooLarge(building, room);
    case Coverage::oversized:
        return DescribeSurplus(building, room);
    }
    return {};
}

CString DescribeLack(double missing, double asked)
{
    return L"mancano " + FormatWatts(missing) + L" (" + FormatPercent(100.0 * missing / asked) +
           L")";
}

CString DescribeExcess(const CBuilding& building, const CRoom& room,
                       const CPlacedRadiator& radiator)
{
    const CRadiatorPlace& place = room.plaetze.at(radiator.nPlatz);
    CString text;
    for (const CString& excess :
         FindExcess(LimitsOfPlace(room, place, building.abstaende), radiator.daten)) {
        text = Joined(text, excess);
    }
    return text;
}

} // namespace workbench
