#include "workbench/plan/sizing.h"

#include "workbench/plan/room_sizing.h"

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

void SizeRoom(CSizingResult& result, const CRoomRef& ref, const CRadiatorStart& start,
              Picked picked)
{
    if (!Exists(result.building, ref) || RoomOf(result.building, ref).GetLeistung() <= 0.0) {
        return;
    }
    CRoomSizing sizing(result.building, result.building.floors[ref.nFloor],
                       RoomOf(result.building, ref), start, picked);
    sizing.Size();
    if (sizing.GetSized() > 0) {
        result.nSized += sizing.GetSized();
        ReplaceRoom(result.building, ref, sizing.GetRoom());
    }
    if (std::optional<CRoomOutcome> outcome = sizing.FindFault()) {
        result.faults.push_back({ref, std::move(*outcome)});
    }
}

} // namespace

bool HasPicked(const CBuilding& building, const std::vector<CRoomRef>& rooms)
{
    return std::ranges::any_of(rooms, [&](const CRoomRef& ref) {
        return Exists(building, ref) &&
               std::ranges::any_of(RoomOf(building, ref).heizkoerper, &CPlacedRadiator::bVonHand);
    });
}

CSizingResult SizeRooms(const CBuilding& building, const std::vector<CRoomRef>& rooms,
                        const SizingProgress& progress, Picked picked)
{
    const std::vector<CRoomRef> ordered = InOrder(rooms);
    const CRadiatorStart start = ReadRadiatorStart();
    CSizingResult result{building, 0, {}, false};
    for (std::size_t done = 0; done < ordered.size(); ++done) {
        SizeRoom(result, ordered[done], start, picked);
        if (progress && !progress(done + 1, ordered.size())) {
            return {building, 0, {}, true};
        }
    }
    return result;
}

} // namespace workbench
