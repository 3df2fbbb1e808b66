#include "tests/growth/floor.h"

#include "tools/large_floor.h"

#include <stdexcept>

workbench::CBuilding Floor(int rooms)
{
    constexpr int kMostRooms = 800;
    static const workbench::CBuilding all = workbench::MakeLargeFloor(kMostRooms);
    if (rooms > kMostRooms) {
        throw std::invalid_argument("too few rooms are made");
    }
    workbench::CBuilding building = all;
    workbench::CFloor& floor = building.floors.front();
    floor.strName = L"Terra";
    floor.rooms.resize(static_cast<std::size_t>(rooms));
    return building;
}

workbench::CBuilding Tower(int size)
{
    constexpr std::size_t kRoomsOfFloor = 5;
    workbench::CBuilding building = Floor(size);
    workbench::CFloor all = std::move(building.floors.front());
    building.floors.clear();
    for (std::size_t i = 0; i < all.rooms.size(); ++i) {
        if (i % kRoomsOfFloor == 0) {
            building.floors.push_back({L"Piano " + std::to_wstring(i), {}, {}});
        }
        building.floors.back().rooms.push_back(all.rooms[i]);
    }
    return building;
}
