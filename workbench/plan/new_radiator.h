#pragma once

#include "frame/ventil_kv.h"
#include "workbench/plan/radiator_choice.h"

#include <optional>

namespace workbench {

/// What a host keeps for the next radiator that it places.
struct CRadiatorStart
{
    /// Distances from wall and floor in metres; nothing where none is kept.
    std::optional<double> abstandWand;
    std::optional<double> abstandBoden;
    /// Connection and valves, as far as any are kept.
    ConnValues anschluss;
    CValveKeys ventile;
    /// Its name has a mark for the floor.
    CRadiatorLayer layer;
    /// Block for radiators whose kind has none of its own; empty for none.
    CString strBlock;
};

/// The layer that the host keeps for radiators, its name with the floor mark.
CRadiatorLayer KeptLayer();

/// The block with which radiators were drawn last; empty if there is none.
CString KeptBlock();

/// A valve as the module's records hold it, and the other way; only its key counts.
VDI3805_VENTIL_KV RecordOf(const std::optional<CValveKey>& key);
std::optional<CValveKey> KeyOf(const VDI3805_VENTIL_KV& record);

/// Reads it from the host's settings and records.
CRadiatorStart ReadRadiatorStart();

/// Puts a radiator at the kept distances, or at those that are usual.
void TakeStartDistances(CPlacedRadiator& radiator, const CBuilding& building,
                        const CRadiatorStart& start);

/// Makes a new radiator begin with the connection that is kept, and with the valves if the building
/// names none.
void ConnectLikeLast(CPlacedRadiator& radiator, const CBuilding& building,
                     const CRadiatorStart& start);

/// A radiator as it was chosen for a room, ready to stand in the plan: at the kept distances, which
/// otherwise are 50 mm from the wall and the building's clearance from the floor, at the best free
/// place, with the room's valves and not yet connected. It lies on the layer chosen, or, without
/// one or one without name, on the kept layer for the floor. Nothing if every place of the room is
/// taken.
std::optional<CPlacedRadiator> PlaceRadiator(const CBuilding& building, const CRoom& room,
                                             const CString& floor, const CRadiatorChoice& chosen,
                                             const CRadiatorStart& start);

/// Makes a placed radiator the one chosen. Place, distances, connection and valves stay. The layer
/// does unless one was chosen; so does the block, unless one was chosen or the product is another.
void TakeChoice(CPlacedRadiator& radiator, const CRadiatorChoice& chosen,
                const CRadiatorStart& start);

} // namespace workbench
