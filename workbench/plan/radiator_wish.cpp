#include "workbench/plan/radiator_wish.h"

#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/radiator_block.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

/// `own` is the output of a radiator that counts as not covering.
void TakeDemand(CRadiatorWish& wish, const CRoom& room, double own)
{
    wish.bedarf = room.bedarf;
    wish.gedeckt = CoveredOf(room) - own;
    wish.leistung = std::max(0.0, wish.bedarf - wish.gedeckt);
}

} // namespace

CString RoomIdOf(const CString& floor, const CString& room)
{
    return floor + L"." + room;
}

CRadiatorWish WishForPlace(const CBuilding& building, const CFloor& floor, const CRoom& room,
                           std::size_t place)
{
    CRadiatorWish wish;
    wish.strRaum = RoomIdOf(floor.strName, room.strName);
    wish.produkt = ProductOf(room);
    wish.grenzen = LimitsOfPlace(room, room.plaetze.at(place), building.abstaende);
    wish.system = building.system;
    wish.raumtemperatur = room.raumtemperatur;
    TakeDemand(wish, room, 0.0);
    if (CString block = BlockOf(room.strArt, room.strProdukt); !block.empty()) {
        wish.block = std::move(block);
    }
    return wish;
}

CRadiatorWish WishForRoom(const CBuilding& building, const CFloor& floor, const CRoom& room)
{
    const std::vector<std::size_t> free = FreePlaces(room);
    CRadiatorWish wish = WishForPlace(building, floor, room, free.empty() ? 0 : free.front());
    wish.bErster = room.heizkoerper.empty() && room.plaetze.size() > 1;
    return wish;
}

CRadiatorWish WishForRadiator(const CBuilding& building, const CFloor& floor, const CRoom& room,
                              std::size_t radiator)
{
    const CPlacedRadiator& present = room.heizkoerper.at(radiator);
    CRadiatorWish wish = WishForPlace(building, floor, room, present.nPlatz);
    wish.produkt = ProductOf(present);
    wish.layer = CRadiatorLayer{present.strLayer, present.nFarbe};
    wish.block = present.strBlock;
    TakeDemand(wish, room, present.daten.Leistung);
    return wish;
}

} // namespace workbench
