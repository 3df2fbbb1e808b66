#include "workbench/plan/room_request.h"

#include "frame/entry_points.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"

#include <algorithm>

namespace workbench {

namespace {

/// The sizes of the product within a range; the whole range if there are none.
void Narrow(const OCArray<double>& sizes, double& min, double& max)
{
    double lowest = max;
    double highest = min;
    for (const double size : sizes) {
        if (size >= min && size <= max) {
            lowest = std::min(lowest, size);
            highest = std::max(highest, size);
        }
    }
    if (lowest <= highest) {
        min = lowest;
        max = highest;
    }
}

/// The dialog offers the sizes of the product and falls back to all of them where it is given
/// another one.
void NarrowToProduct(HK_DATEN_VDI3805_UEBERGABE& request)
{
    OCArray<double> heights;
    OCArray<double> depths;
    Read_HK_Masse(request, heights, depths);
    Narrow(heights, request.HoeheMin, request.HoeheMax);
    Narrow(depths, request.TiefeMin, request.TiefeMax);
}

void TakeLimits(HK_DATEN_VDI3805_UEBERGABE& request, const CSizeLimits& limits)
{
    request.LaengeMax = limits.laengeMax;
    request.HoeheMax = limits.hoeheMax;
    request.TiefeMin = limits.tiefeMin;
    request.TiefeMax = limits.tiefeMax;
}

/// A radiator or a room, which name their product alike.
template <class OWNER>
void TakeProduct(HK_DATEN_VDI3805_UEBERGABE& request, const OWNER& owner)
{
    request.Hersteller = owner.strHersteller;
    request.Art = owner.strArt;
    request.Produkt = owner.strProdukt;
}

void TakeDemand(HK_DATEN_VDI3805_UEBERGABE& request, const CRoom& room, double ownOutput)
{
    request.RaumBedarf = room.bedarf;
    request.RaumGedeckt = CoveredOf(room) - ownOutput;
    request.Leistung = std::max(0.0, request.RaumBedarf - request.RaumGedeckt);
}

} // namespace

CString RoomIdOf(const CString& floor, const CString& room)
{
    return floor + L"." + room;
}

HK_DATEN_VDI3805_UEBERGABE MakeRequest(const CBuilding& building, const CFloor& floor,
                                       const CRoom& room, std::optional<std::size_t> radiator)
{
    HK_DATEN_VDI3805_UEBERGABE request;
    std::size_t place = 0;
    if (radiator) {
        const CPlacedRadiator& present = room.heizkoerper.at(*radiator);
        TakeProduct(request, present);
        TakeDemand(request, room, present.daten.Leistung);
        place = present.nPlatz;
    } else {
        const std::vector<std::size_t> free = FreePlaces(room);
        TakeProduct(request, room);
        TakeDemand(request, room, 0.0);
        place = free.empty() ? 0 : free.front();
    }
    TakeLimits(request, LimitsOfPlace(room, room.plaetze.at(place), building.abstaende));
    request.Vorlauf = building.system.vorlauf;
    request.Ruecklauf = building.system.ruecklauf;
    request.Raumtemperatur = room.raumtemperatur;
    request.Raumname = RoomIdOf(floor.strName, room.strName);
    request.NeuLesen = 1;
    NarrowToProduct(request);
    return request;
}

} // namespace workbench
