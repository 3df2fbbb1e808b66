#include "workbench/building/building.h"

#include <algorithm>

namespace workbench {

bool CHeatingSystem::IsPlausible() const
{
    return ruecklauf > 0.0 && ruecklauf < vorlauf && vorlauf <= 110.0;
}

const CRoom* FindRoomTooWarm(const CBuilding& building)
{
    for (const CFloor& floor : building.floors) {
        for (const auto& room : floor.rooms) {
            if (room->raumtemperatur >= building.system.ruecklauf) {
                return room.get();
            }
        }
    }
    return nullptr;
}

bool HasValves(const CBuilding& building)
{
    const auto hasValve = [](const std::shared_ptr<const CRoom>& room) {
        return room->ventile.vorlauf || room->ventile.ruecklauf;
    };
    return std::any_of(building.floors.begin(), building.floors.end(), [&](const CFloor& floor) {
        return std::any_of(floor.rooms.begin(), floor.rooms.end(), hasValve);
    });
}

bool KeepRoom(CBuilding& building, const CString& name)
{
    for (const CFloor& floor : building.floors) {
        for (const auto& room : floor.rooms) {
            if (room->strName == name) {
                building.floors = std::vector<CFloor>{{floor.strName, {room}, floor.strNotiz}};
                return true;
            }
        }
    }
    return false;
}

CSizeLimits LimitsOfPlace(const CRoom& room, const CRadiatorPlace& place,
                          const CClearance& clearance)
{
    // Only a window has a sill above the radiator, to which the air needs a gap.
    const double sill = place.art == PlaceKind::window ? clearance.sturz : 0.0;
    CSizeLimits limits = room.grenzen;
    limits.hoeheMax = place.hoehe - clearance.boden - sill;
    limits.laengeMax = place.breite;
    return limits;
}

} // namespace workbench
