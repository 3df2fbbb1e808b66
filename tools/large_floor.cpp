#include "tools/large_floor.h"

#include "tools/make_building_samples.h"

#include <utility>

namespace workbench {

namespace {

/// Millimetres from wing to wing; longer than any row of rooms.
constexpr double kWing = 105000.0;
constexpr std::size_t kWingsAbreast = 4;

/// One floor's wings are as deep as this with the courts between them.
constexpr double kBlock = 110000.0;

CRoom Moved(const CRoom& room, std::size_t block)
{
    const std::size_t row = block / kWingsAbreast;
    CRoom moved = room;
    moved.grundriss.x += kWing * static_cast<double>(block % kWingsAbreast);
    moved.grundriss.y += kBlock * static_cast<double>(row);
    return moved;
}

void Vary(CRoom& room, std::size_t number)
{
    if (number % 9 == 4) {
        room.heizkoerper.clear();
    }
    for (CPlacedRadiator& radiator : room.heizkoerper) {
        radiator.strBlock = L"RAD_PIASTRA_22_PIANTA";
        radiator.daten.Leistung *= number % 6 == 2 ? 0.75 : 1.03;
    }
}

} // namespace

CBuilding MakeLargeFloor(std::size_t rooms)
{
    CBuilding building = MakeLargeBuilding(rooms);
    PlaceSampleRadiators(building);
    CFloor all;
    for (std::size_t block = 0; block < building.floors.size(); ++block) {
        for (const auto& room : building.floors[block].rooms) {
            CRoom moved = Moved(*room, block);
            Vary(moved, all.rooms.size());
            all.rooms.push_back(std::make_shared<const CRoom>(std::move(moved)));
        }
    }
    building.floors = {std::move(all)};
    return building;
}

} // namespace workbench
