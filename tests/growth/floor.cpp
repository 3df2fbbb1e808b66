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
