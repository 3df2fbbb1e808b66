#include "workbench/plan/plan_edit.h"

#include "platform/rounding.h"
#include "workbench/plan/wish_handover.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace workbench {

namespace {

constexpr double kWatt = 1.0;

/// The factor from standard output to that at the system's temperatures, which no product decides.
double AskFactor(const CHeatingSystem& system, double raumtemperatur)
{
    CRadiatorWish wish;
    wish.system = system;
    wish.raumtemperatur = raumtemperatur;
    return FillHandover(wish).Umrechnungsfaktor;
}

/// Asks the module once for every temperature that rooms have.
class CFactors
{
public:
    explicit CFactors(const CHeatingSystem& system) : m_system(system) {}

    double Of(double raumtemperatur)
    {
        const auto [entry, isNew] = m_factors.try_emplace(raumtemperatur);
        if (isNew) {
            entry->second = AskFactor(m_system, raumtemperatur);
        }
        return entry->second;
    }

private:
    CHeatingSystem m_system;
    std::map<double, double> m_factors;
};

/// Each once, from the last one on, so that those to come keep their index when one is taken out.
template <class Ref>
std::vector<Ref> Falling(std::vector<Ref> refs)
{
    std::ranges::sort(refs, std::greater<>());
    refs.erase(std::unique(refs.begin(), refs.end()), refs.end());
    return refs;
}

template <class Items>
void TakeOut(Items& items, std::size_t index)
{
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(index));
}

CRoom RoomAt(const CRoom& room, double factor)
{
    CRoom result = room;
    for (CPlacedRadiator& radiator : result.heizkoerper) {
        radiator.daten.Leistung = RoundTo(radiator.daten.LeistungEN442 * factor, kWatt);
    }
    return result;
}

} // namespace

bool Exists(const CBuilding& building, const CRoomRef& ref)
{
    return ref.nFloor < building.floors.size() &&
           ref.nRoom < building.floors[ref.nFloor].rooms.size();
}

bool Exists(const CBuilding& building, const CRadiatorRef& ref)
{
    return Exists(building, ref.room) &&
           ref.nRadiator < RoomOf(building, ref.room).heizkoerper.size();
}

const CRoom& RoomOf(const CBuilding& building, const CRoomRef& ref)
{
    return *building.floors.at(ref.nFloor).rooms.at(ref.nRoom);
}

const CPlacedRadiator& RadiatorOf(const CBuilding& building, const CRadiatorRef& ref)
{
    return RoomOf(building, ref.room).heizkoerper.at(ref.nRadiator);
}

bool IsSameRoom(const CBuilding& a, const CBuilding& b, const CRoomRef& ref)
{
    return Exists(a, ref) && Exists(b, ref) &&
           a.floors[ref.nFloor].strName == b.floors[ref.nFloor].strName &&
           RoomOf(a, ref).strName == RoomOf(b, ref).strName;
}

std::optional<CRoomRef> FindRoom(const CBuilding& building, const CString& name)
{
    const std::vector<CRoomRef> rooms = AllRooms(building);
    const auto found = std::ranges::find_if(
        rooms, [&](const CRoomRef& ref) { return RoomOf(building, ref).strName == name; });
    return found != rooms.end() ? std::optional(*found) : std::nullopt;
}

std::vector<CRoomRef> AllRooms(const CBuilding& building)
{
    std::vector<CRoomRef> refs;
    for (std::size_t floor = 0; floor < building.floors.size(); ++floor) {
        for (std::size_t room = 0; room < building.floors[floor].rooms.size(); ++room) {
            refs.push_back({floor, room});
        }
    }
    return refs;
}

std::vector<CRoomRef> InOrder(std::vector<CRoomRef> rooms)
{
    std::ranges::sort(rooms);
    rooms.erase(std::unique(rooms.begin(), rooms.end()), rooms.end());
    return rooms;
}

void ReplaceRoom(CBuilding& building, const CRoomRef& ref, CRoom room)
{
    building.floors.at(ref.nFloor).rooms.at(ref.nRoom) =
        std::make_shared<const CRoom>(std::move(room));
}

void ReplaceRadiator(CBuilding& building, const CRadiatorRef& ref, CPlacedRadiator radiator)
{
    CRoom room = RoomOf(building, ref.room);
    room.heizkoerper.at(ref.nRadiator) = std::move(radiator);
    ReplaceRoom(building, ref.room, std::move(room));
}

void RemoveRadiators(CBuilding& building, const std::vector<CRadiatorRef>& refs)
{
    for (const CRadiatorRef& ref : Falling(refs)) {
        if (Exists(building, ref)) {
            CRoom room = RoomOf(building, ref.room);
            TakeOut(room.heizkoerper, ref.nRadiator);
            ReplaceRoom(building, ref.room, std::move(room));
        }
    }
}

void RemoveRooms(CBuilding& building, const std::vector<CRoomRef>& refs)
{
    for (const CRoomRef& ref : Falling(refs)) {
        if (Exists(building, ref)) {
            TakeOut(building.floors[ref.nFloor].rooms, ref.nRoom);
        }
    }
    std::erase_if(building.floors, [](const CFloor& floor) { return floor.rooms.empty(); });
}

void ChangeSystem(CBuilding& building, const CHeatingSystem& system)
{
    building.system = system;
    CFactors factors(system);
    for (const CRoomRef& ref : AllRooms(building)) {
        const CRoom& room = RoomOf(building, ref);
        if (!room.heizkoerper.empty()) {
            ReplaceRoom(building, ref, RoomAt(room, factors.Of(room.raumtemperatur)));
        }
    }
}

void UpdateOutputs(CBuilding& building, const CRoomRef& ref)
{
    const CRoom& room = RoomOf(building, ref);
    ReplaceRoom(building, ref, RoomAt(room, CFactors(building.system).Of(room.raumtemperatur)));
}

void SetProduct(CBuilding& building, const std::vector<CRoomRef>& rooms,
                const CRadiatorProduct& produkt)
{
    for (const CRoomRef& ref : rooms) {
        if (Exists(building, ref)) {
            CRoom room = RoomOf(building, ref);
            room.strHersteller = produkt.strHersteller;
            room.strArt = produkt.strArt;
            room.strProdukt = produkt.strProdukt;
            ReplaceRoom(building, ref, std::move(room));
        }
    }
}

} // namespace workbench
