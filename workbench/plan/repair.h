#pragma once

#include "workbench/plan/sizing.h"

namespace workbench {

/// A room that was to be repaired, and what came of it.
struct CRepairedRoom
{
    CRoomRef room;
    /// What was changed and how the room stands afterwards; a text for the user.
    CString strReport;
};

struct CRepairResult
{
    /// The building with the rooms as repaired.
    CBuilding building;
    /// In the order of the building.
    std::vector<CRepairedRoom> rooms;
    /// True if `progress` ended it; the building is then the one that came in.
    bool bCancelled = false;
};

/// Gives rooms what they need, as far as catalogues and places go. Each is sized anew with its
/// product (SizeRooms). Where that is not enough its radiators become the largest that fit their
/// places; then its free places get radiators as well; and where that is not enough either, all of
/// this is done with another product of the same kind: the slimmest that is enough, or else the
/// strongest. That product becomes the room's. A room stays as good as it was at least. Rooms that
/// are covered by radiators of the right size are passed over, as are those that need nothing and
/// references to rooms that do not exist.
CRepairResult RepairRooms(const CBuilding& building, const std::vector<CRoomRef>& rooms,
                          const SizingProgress& progress, Picked picked = Picked::stay);

} // namespace workbench
