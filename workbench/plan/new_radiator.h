#pragma once

#include "frame/handover.h"
#include "workbench/building/building.h"

#include <optional>

namespace workbench {

/// What a host keeps for the next radiator that it places.
struct CRadiatorStart
{
    /// Distances from wall and floor in metres; nothing where none is kept.
    std::optional<double> abstandWand;
    std::optional<double> abstandBoden;
    /// Layer name with its floor mark, and the layer's colour index.
    CString strLayerVorlage;
    int nFarbe = 0;
    /// Block for radiators whose kind has none of its own; empty for none.
    CString strBlock;
};

/// Reads it from the host's settings and records.
CRadiatorStart ReadRadiatorStart();

/// A radiator as the module chose it for a room, ready to stand in the plan: at the kept distances,
/// which otherwise are 50 mm from the wall and the building's clearance from the floor, on the
/// layer for the floor, at the best free place, with the room's valves and not yet connected.
/// Nothing if every place of the room is taken.
std::optional<CPlacedRadiator> PlaceRadiator(const CBuilding& building, const CRoom& room,
                                             const CString& floor,
                                             const HK_DATEN_VDI3805_UEBERGABE& chosen,
                                             const CRadiatorStart& start);

/// The same with what the host keeps now, on the layer that the selection dialog handed back; an
/// empty one stands for the host's own.
std::optional<CPlacedRadiator> PlaceRadiator(const CBuilding& building, const CRoom& room,
                                             const CString& floor,
                                             const HK_DATEN_VDI3805_UEBERGABE& chosen,
                                             const CString& layer = {}, int farbe = 0);

/// Makes a placed radiator the one chosen. Place, distances, layer, connection and valves stay; the
/// block too, unless the product is another.
void TakeChoice(CPlacedRadiator& radiator, const HK_DATEN_VDI3805_UEBERGABE& chosen,
                const CRadiatorStart& start);
void TakeChoice(CPlacedRadiator& radiator, const HK_DATEN_VDI3805_UEBERGABE& chosen);

} // namespace workbench
