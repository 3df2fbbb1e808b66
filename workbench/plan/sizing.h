#pragma once

#include "workbench/plan/plan_edit.h"
#include "workbench/plan/room_sizing.h"

#include <functional>

namespace workbench {

/// A room that could not be given what it needs, and what the first search of it came to.
struct CSizingFault
{
    CRoomRef room;
    CRoomOutcome outcome;
};

struct CSizingResult
{
    /// The building with the radiators as sized.
    CBuilding building;
    /// Radiators chosen.
    int nSized = 0;
    /// Rooms that stay open, and those that are covered by what stood there before while their
    /// catalogue cannot be read; in the order of the building.
    std::vector<CSizingFault> faults;
    /// True if `progress` ended it; the building is then the one that came in, and nothing is
    /// sized.
    bool bCancelled = false;
};

/// Asked after every room with the number of rooms done and of all; false ends the sizing. An empty
/// one is not asked.
using SizingProgress = std::function<bool(std::size_t done, std::size_t all)>;

/// True if any of the rooms has a radiator that was picked by hand.
bool HasPicked(const CBuilding& building, const std::vector<CRoomRef>& rooms);

/// Chooses a radiator of the room's product anew for every one of the rooms, by silent calls of the
/// module: a room without radiator gets one at a free place; a room with one keeps place,
/// distances, layer, connection and valves and gets another size; of several radiators each is
/// sized for its share of what they gave before. Where radiators picked by hand stay, the others
/// share what those leave. A radiator that no row can replace stays as it is, and the room is told
/// as a fault if it stays open. Rooms that need nothing are passed over, as are references to rooms
/// that do not exist.
CSizingResult SizeRooms(const CBuilding& building, const std::vector<CRoomRef>& rooms,
                        const SizingProgress& progress, Picked picked = Picked::stay);

} // namespace workbench
