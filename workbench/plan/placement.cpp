#include "workbench/plan/placement.h"
#include "workbench/building/user_text.h"

#include "platform/format.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr double kMillimetre = 0.001;

/// How a wall lies in the plan: the direction of lines along it in degrees counter-clockwise from
/// +x, and the way from it into the room.
struct CWallFrame
{
    double winkel = 0.0;
    double inwardX = 0.0;
    double inwardY = 0.0;
};

CWallFrame FrameOf(Wall wand)
{
    switch (wand) {
    case Wall::sued:
        return {0.0, 0.0, 1.0};
    case Wall::ost:
        return {90.0, -1.0, 0.0};
    case Wall::nord:
        return {180.0, 0.0, -1.0};
    case Wall::west:
        return {270.0, 1.0, 0.0};
    }
    return {};
}

/// The place along one axis of the plan, in mm.
struct CSpan
{
    double from = 0.0;
    double to = 0.0;
};

CSpan SpanFrom(double start, const CRadiatorPlace& place)
{
    return {start + place.abstand, start + place.abstand + place.breite};
}

CPlaceLine InMetres(const CPlaceLine& line)
{
    return {kMillimetre * line.dX1, kMillimetre * line.dY1, kMillimetre * line.dX2,
            kMillimetre * line.dY2};
}

CString Millimetres(double value)
{
    return FormatNumber(value) + L" mm";
}

/// The narrowest of the places that is of the kind and that the row fits.
std::optional<std::size_t> FindNarrowest(const CRoom& room, const std::vector<std::size_t>& places,
                                         PlaceKind kind, const CClearance& clearance,
                                         const HK_DATEN_VDI3805& daten)
{
    std::optional<std::size_t> found;
    for (const std::size_t i : places) {
        const CRadiatorPlace& place = room.plaetze[i];
        if (place.art == kind && FitsPlace(room, place, clearance, daten) &&
            (!found || place.breite < room.plaetze[*found].breite)) {
            found = i;
        }
    }
    return found;
}

} // namespace

CPlaceLine LineOf(const CRoom& room, const CRadiatorPlace& place)
{
    const CFloorRect& plan = room.grundriss;
    const CSpan x = SpanFrom(plan.x, place);
    const CSpan y = SpanFrom(plan.y, place);
    switch (place.wand) {
    case Wall::sued:
        return InMetres({x.from, plan.y, x.to, plan.y});
    case Wall::ost:
        return InMetres({plan.x + plan.breite, y.from, plan.x + plan.breite, y.to});
    case Wall::nord:
        return InMetres({x.to, plan.y + plan.tiefe, x.from, plan.y + plan.tiefe});
    case Wall::west:
        return InMetres({plan.x, y.to, plan.x, y.from});
    }
    return {};
}

CRadiatorPose PoseOf(const CRoom& room, const CPlacedRadiator& radiator)
{
    const CRadiatorPlace& place = room.plaetze.at(radiator.nPlatz);
    const CPlaceLine line = LineOf(room, place);
    const CWallFrame frame = FrameOf(place.wand);
    CRadiatorPose pose;
    pose.dWinkel = frame.winkel;
    pose.dLaenge = kMillimetre * radiator.daten.Laenge;
    pose.dTiefe = kMillimetre * radiator.daten.Tiefe;
    pose.dHoehe = kMillimetre * radiator.daten.Hoehe;
    pose.dUeberBoden = radiator.abstandBoden;
    const double away = radiator.abstandWand + pose.dTiefe / 2.0;
    pose.dX = (line.dX1 + line.dX2) / 2.0 + frame.inwardX * away;
    pose.dY = (line.dY1 + line.dY2) / 2.0 + frame.inwardY * away;
    return pose;
}

std::vector<CString> FindExcess(const CSizeLimits& limits, const HK_DATEN_VDI3805& daten)
{
    std::vector<CString> excess;
    const auto add = [&](const CString& name, double value, double limit) {
        if (value > limit) {
            excess.push_back(name + L" " + Millimetres(value) + L", consentiti " +
                             Millimetres(limit));
        }
    };
    add(L"altezza", daten.Hoehe, limits.hoeheMax);
    add(L"lunghezza", daten.Laenge, limits.laengeMax);
    add(L"profondità", daten.Tiefe, limits.tiefeMax);
    if (daten.Tiefe < limits.tiefeMin) {
        excess.push_back(L"profondità " + Millimetres(daten.Tiefe) + L", richiesti almeno " +
                         Millimetres(limits.tiefeMin));
    }
    return excess;
}

bool FitsPlace(const CRoom& room, const CRadiatorPlace& place, const CClearance& clearance,
               const HK_DATEN_VDI3805& daten)
{
    return FindExcess(LimitsOfPlace(room, place, clearance), daten).empty();
}

std::optional<std::size_t> FindFreePlace(const CRoom& room, const CClearance& clearance,
                                         const HK_DATEN_VDI3805& daten)
{
    const std::vector<std::size_t> free = FreePlaces(room);
    for (const PlaceKind kind : {PlaceKind::window, PlaceKind::wall}) {
        if (const auto place = FindNarrowest(room, free, kind, clearance, daten)) {
            return place;
        }
    }
    return free.empty() ? std::nullopt : std::optional(free.front());
}

bool IsTaken(const CRoom& room, std::size_t place)
{
    return std::ranges::any_of(room.heizkoerper, [&](const CPlacedRadiator& radiator) {
        return radiator.nPlatz == place;
    });
}

std::vector<std::size_t> FreePlaces(const CRoom& room)
{
    std::vector<bool> taken(room.plaetze.size());
    for (const CPlacedRadiator& radiator : room.heizkoerper) {
        if (radiator.nPlatz < taken.size()) {
            taken[radiator.nPlatz] = true;
        }
    }
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < taken.size(); ++i) {
        if (!taken[i]) {
            places.push_back(i);
        }
    }
    return places;
}

} // namespace workbench
