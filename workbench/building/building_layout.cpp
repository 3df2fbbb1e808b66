#include "workbench/building/building_layout.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace workbench {

namespace {

/// Usual heat demand of dwellings, in watts a square metre.
constexpr double kUsualLoad = 60.0;

constexpr double kSquareMetre = 1e6;
constexpr double kSmallestArea = 4.0 * kSquareMetre;

constexpr double kCorridor = 1500.0;
constexpr double kInnerWall = 100.0;
constexpr double kNarrowestRoom = 1500.0;
constexpr double kShallowestRoom = 2500.0;
constexpr double kDeepestRoom = 8000.0;
/// Rooms are measured in whole centimetres.
constexpr double kStep = 10.0;

double AreaOf(const CRoom& room)
{
    return std::max(room.bedarf / kUsualLoad * kSquareMetre, kSmallestArea);
}

double RoundUp(double length)
{
    return std::ceil(length / kStep) * kStep;
}

/// One for all rooms, so that the facades are even: a room of average size becomes a square.
double DepthOf(const std::vector<CRoom>& rooms)
{
    const double area =
        std::accumulate(rooms.begin(), rooms.end(), 0.0,
                        [](double sum, const CRoom& room) { return sum + AreaOf(room); });
    const double side = std::sqrt(area / static_cast<double>(rooms.size()));
    return RoundUp(std::clamp(side, kShallowestRoom, kDeepestRoom));
}

} // namespace

void LayOutFloor(std::vector<CRoom>& rooms)
{
    const double depth = DepthOf(rooms);
    double southEnd = 0.0;
    double northEnd = 0.0;
    for (CRoom& room : rooms) {
        CRadiatorPlace& place = room.plaetze.front();
        const bool south = southEnd <= northEnd;
        double& end = south ? southEnd : northEnd;
        CFloorRect& rect = room.grundriss;
        rect.x = end;
        rect.y = south ? 0.0 : depth + kCorridor;
        rect.breite = RoundUp(std::max({AreaOf(room) / depth, place.breite, kNarrowestRoom}));
        rect.tiefe = depth;
        end += rect.breite + kInnerWall;
        place.wand = south ? Wall::sued : Wall::nord;
        place.abstand = (rect.breite - place.breite) / 2.0;
    }
}

} // namespace workbench
