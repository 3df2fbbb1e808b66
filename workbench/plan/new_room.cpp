#include "workbench/plan/new_room.h"
#include "workbench/building/user_text.h"
#include "workbench/plan/plan_edit.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr CHeatingSystem kUsualSystem{70.0, 55.0};
constexpr CClearance kUsualClearance{100.0, 80.0};
constexpr double kInnerWall = 100.0;
/// Ground that a window keeps before it.
constexpr double kFreeGround = 2000.0;

CFloor& FloorOf(CBuilding& building, const CString& name)
{
    const auto found = std::ranges::find(building.floors, name, &CFloor::strName);
    return found != building.floors.end() ? *found
                                          : building.floors.emplace_back(CFloor{name, {}, {}});
}

bool HasWindowTo(Wall wall, const CRoom& room)
{
    return std::ranges::any_of(room.plaetze, [wall](const CRadiatorPlace& place) {
        return place.art == PlaceKind::window && place.wand == wall;
    });
}

CFloorRect EastOf(const CFloor& floor, const CNewRoom& room)
{
    CFloorRect rect{0.0, 0.0, room.breite, room.tiefe};
    if (!floor.rooms.empty()) {
        rect.y = floor.rooms.front()->grundriss.y;
    }
    for (const auto& other : floor.rooms) {
        const CFloorRect& taken = other->grundriss;
        rect.x = std::max(rect.x, taken.x + taken.breite +
                                      (HasWindowTo(Wall::ost, *other) ? kFreeGround : kInnerWall));
        rect.y = std::min(rect.y, taken.y);
    }
    return rect;
}

/// The last room of the floor, or of the first floor that has rooms; null if there is none.
const CRoom* LastRoom(const CBuilding& building, const CFloor& floor)
{
    if (!floor.rooms.empty()) {
        return floor.rooms.back().get();
    }
    for (const CFloor& other : building.floors) {
        if (!other.rooms.empty()) {
            return other.rooms.back().get();
        }
    }
    return nullptr;
}

} // namespace

CBuilding MakeBuilding(const CString& name)
{
    CBuilding building;
    building.strName = name;
    building.system = kUsualSystem;
    building.abstaende = kUsualClearance;
    return building;
}

CString FindFault(const CBuilding& building, const CNewRoom& room)
{
    if (room.strName.empty()) {
        return L"Manca il nome del locale.";
    }
    if (FindRoom(building, room.strName)) {
        return L"C'è già un locale con questo nome.";
    }
    if (room.strFloor.empty()) {
        return L"Manca il nome del piano.";
    }
    if (room.raumtemperatur >= building.system.ruecklauf) {
        return L"La temperatura deve stare sotto il ritorno, " +
               FormatNumber(building.system.ruecklauf) + L" °C.";
    }
    if (room.fensterBreite > room.breite) {
        return L"La finestra è più larga del locale.";
    }
    if (room.bruestung <= building.abstaende.boden + building.abstaende.sturz) {
        return L"Il davanzale non lascia spazio a un corpo scaldante.";
    }
    return {};
}

void AddRoom(CBuilding& building, const CNewRoom& room)
{
    CFloor& floor = FloorOf(building, room.strFloor);
    CRoom added;
    added.strName = room.strName;
    added.raumtemperatur = room.raumtemperatur;
    added.bedarf = room.bedarf;
    added.grundriss = EastOf(floor, room);
    added.plaetze = {{PlaceKind::window, room.bruestung, room.fensterBreite, Wall::sued,
                      (room.breite - room.fensterBreite) / 2.0}};
    added.grenzen.tiefeMax = kAnyDepth;
    added.grenzen = LimitsOfPlace(added, added.plaetze.front(), building.abstaende);
    added.ventile = building.ventile;
    if (const CRoom* const last = LastRoom(building, floor)) {
        added.strHersteller = last->strHersteller;
        added.strArt = last->strArt;
        added.strProdukt = last->strProdukt;
    }
    floor.rooms.push_back(std::make_shared<const CRoom>(std::move(added)));
}

} // namespace workbench
