#include "workbench/plan/new_radiator.h"

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "reference_host/catalog/room_layer.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/radiator_block.h"
#include "workbench/plan/room_request.h"

#include <tuple>

namespace workbench {

namespace {

/// Metres that leave room for brackets behind a radiator.
constexpr double kUsualWallDistance = 0.05;
constexpr double kMillimetre = 0.001;

/// The record has no other sign for "not set" than 0.
std::optional<double> Kept(double distance)
{
    return distance > 0.0 ? std::optional(distance) : std::nullopt;
}

/// As the selection dialog makes it, so that radiators of a floor share a layer however they came.
CString LayerOf(const CString& vorlage, const CString& floor, const CString& room)
{
    return reference_host::LayerOfRoom(vorlage, RoomIdOf(floor, room));
}

bool IsSameProduct(const CPlacedRadiator& radiator, const HK_DATEN_VDI3805_UEBERGABE& chosen)
{
    return std::tie(radiator.strHersteller, radiator.strArt, radiator.strProdukt) ==
           std::tie(chosen.Hersteller, chosen.Art, chosen.Produkt);
}

} // namespace

CRadiatorStart ReadRadiatorStart()
{
    CRadiatorStart start;
    if (const VDI6030START* const kept = ReadDefFile_VDI6030START(false)) {
        start.abstandWand = Kept(kept->AbstandWand);
        start.abstandBoden = Kept(kept->AbstandBoden);
    }
    lmGetHKLayer(start.strLayerVorlage);
    lmGetHKLayerColor(start.nFarbe);
    lmGetHKBlock(start.strBlock);
    return start;
}

std::optional<CPlacedRadiator> PlaceRadiator(const CBuilding& building, const CRoom& room,
                                             const CString& floor,
                                             const HK_DATEN_VDI3805_UEBERGABE& chosen,
                                             const CRadiatorStart& start)
{
    const std::optional<std::size_t> place = FindFreePlace(room, building.abstaende, chosen.Daten);
    if (!place) {
        return std::nullopt;
    }
    CPlacedRadiator radiator;
    TakeChoice(radiator, chosen, start);
    radiator.nPlatz = *place;
    radiator.abstandWand = start.abstandWand.value_or(kUsualWallDistance);
    radiator.abstandBoden = start.abstandBoden.value_or(kMillimetre * building.abstaende.boden);
    radiator.strLayer = LayerOf(start.strLayerVorlage, floor, room.strName);
    radiator.nFarbe = start.nFarbe;
    radiator.ventile = room.ventile;
    return radiator;
}

std::optional<CPlacedRadiator> PlaceRadiator(const CBuilding& building, const CRoom& room,
                                             const CString& floor,
                                             const HK_DATEN_VDI3805_UEBERGABE& chosen,
                                             const CString& layer, int farbe)
{
    std::optional<CPlacedRadiator> radiator =
        PlaceRadiator(building, room, floor, chosen, ReadRadiatorStart());
    if (radiator && !layer.empty()) {
        radiator->strLayer = layer;
        radiator->nFarbe = farbe;
    }
    return radiator;
}

void TakeChoice(CPlacedRadiator& radiator, const HK_DATEN_VDI3805_UEBERGABE& chosen,
                const CRadiatorStart& start)
{
    if (!IsSameProduct(radiator, chosen)) {
        const CString block = BlockOf(chosen.Art, chosen.Produkt);
        radiator.strBlock = block.empty() ? start.strBlock : block;
    }
    radiator.strHersteller = chosen.Hersteller;
    radiator.strArt = chosen.Art;
    radiator.strProdukt = chosen.Produkt;
    radiator.strTyp = chosen.TypName;
    radiator.daten = chosen.Daten;
}

void TakeChoice(CPlacedRadiator& radiator, const HK_DATEN_VDI3805_UEBERGABE& chosen)
{
    TakeChoice(radiator, chosen, ReadRadiatorStart());
}

} // namespace workbench
