#pragma once

#include "workbench/plan/radiator_product.h"

#include <compare>
#include <cstddef>
#include <optional>
#include <vector>

namespace workbench {

/// A room by its place in the building; holds as long as floors and rooms are the same.
struct CRoomRef
{
    std::size_t nFloor = 0;
    std::size_t nRoom = 0;
    // The linter takes a number inside of the default for a pointer.
    auto operator<=>(const CRoomRef&) const = default; // NOLINT(modernize-use-nullptr)
};

/// A radiator of a room; holds as long as the room's radiators are the same ones.
struct CRadiatorRef
{
    CRoomRef room;
    std::size_t nRadiator = 0;
    // The linter takes a number inside of the default for a pointer.
    auto operator<=>(const CRadiatorRef&) const = default; // NOLINT(modernize-use-nullptr)
};

bool Exists(const CBuilding& building, const CRoomRef& ref);
bool Exists(const CBuilding& building, const CRadiatorRef& ref);

/// The room must exist.
const CRoom& RoomOf(const CBuilding& building, const CRoomRef& ref);
const CPlacedRadiator& RadiatorOf(const CBuilding& building, const CRadiatorRef& ref);

/// True if both buildings have a room of the same name on the same floor there.
bool IsSameRoom(const CBuilding& a, const CBuilding& b, const CRoomRef& ref);

/// The room of that name; nothing if there is none.
std::optional<CRoomRef> FindRoom(const CBuilding& building, const CString& name);

/// All rooms of the building, floor by floor.
std::vector<CRoomRef> AllRooms(const CBuilding& building);

/// Each of the rooms once, in the order of the building.
std::vector<CRoomRef> InOrder(std::vector<CRoomRef> rooms);

/// Puts another room, or another radiator, in place of the one there, which must exist. Other
/// states of the building keep theirs.
void ReplaceRoom(CBuilding& building, const CRoomRef& ref, CRoom room);
void ReplaceRadiator(CBuilding& building, const CRadiatorRef& ref, CPlacedRadiator radiator);

/// Takes radiators out; those that do not exist are passed over.
void RemoveRadiators(CBuilding& building, const std::vector<CRadiatorRef>& refs);

/// Takes rooms out, and the floors that have none left; those that do not exist are passed over. A
/// building's file needs one room at least.
void RemoveRooms(CBuilding& building, const std::vector<CRoomRef>& refs);

/// Gives the building another heating system: the output of every radiator, whatever its catalogue,
/// becomes the one that the module computes for it at these temperatures. The return must be warmer
/// than every room (FindRoomTooWarm).
void ChangeSystem(CBuilding& building, const CHeatingSystem& system);

/// Makes the outputs of a room's radiators those at the building's heating system.
void UpdateOutputs(CBuilding& building, const CRoomRef& ref);

/// Writes a product into rooms as the one wished for; radiators stay. Rooms that do not exist are
/// passed over.
void SetProduct(CBuilding& building, const std::vector<CRoomRef>& rooms,
                const CRadiatorProduct& produkt);

} // namespace workbench
