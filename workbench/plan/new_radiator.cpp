#include "workbench/plan/new_radiator.h"

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "reference_host/catalog/room_layer.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/radiator_block.h"

namespace workbench {

namespace {

/// Metres that leave room for brackets behind a radiator.
constexpr double kUsualWallDistance = 0.05;
constexpr double kMetreOfMillimetre = 0.001;

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

} // namespace

CRadiatorLayer KeptLayer()
{
    CRadiatorLayer layer;
    lmGetHKLayer(layer.strName);
    lmGetHKLayerColor(layer.nFarbe);
    return layer;
}

CString KeptBlock()
{
    CString block;
    lmGetHKBlock(block);
    return block;
}

VDI3805_VENTIL_KV RecordOf(const std::optional<CValveKey>& key)
{
    VDI3805_VENTIL_KV record;
    if (key) {
        record.Hersteller = key->strHersteller;
        record.VentilNr = key->strVentilNr;
    }
    return record;
}

std::optional<CValveKey> KeyOf(const VDI3805_VENTIL_KV& record)
{
    if (record.Hersteller.empty() || record.VentilNr.empty()) {
        return std::nullopt;
    }
    return CValveKey{record.Hersteller, record.VentilNr};
}

CRadiatorStart ReadRadiatorStart()
{
    CRadiatorStart start;
    if (const VDI6030START* const kept = ReadDefFile_VDI6030START(false)) {
        start.abstandWand = Kept(kept->AbstandWand);
        start.abstandBoden = Kept(kept->AbstandBoden);
        start.anschluss = kept->Anschluss;
        start.ventile = {KeyOf(kept->VentilVorlauf), KeyOf(kept->VentilRuecklauf)};
    }
    start.layer = KeptLayer();
    start.strBlock = KeptBlock();
    return start;
}

void TakeStartDistances(CPlacedRadiator& radiator, const CBuilding& building,
                        const CRadiatorStart& start)
{
    radiator.abstandWand = start.abstandWand.value_or(kUsualWallDistance);
    radiator.abstandBoden =
        start.abstandBoden.value_or(kMetreOfMillimetre * building.abstaende.boden);
}

void ConnectLikeLast(CPlacedRadiator& radiator, const CBuilding& building,
                     const CRadiatorStart& start)
{
    if (!start.anschluss.AnschlussAN.empty() && !start.anschluss.AnschlussRI.empty()) {
        radiator.anschluss = start.anschluss;
        radiator.anschluss.WandAbstand = 0.0;
    }
    if (!HasValves(building)) {
        radiator.ventile = start.ventile;
    }
}

std::optional<CPlacedRadiator> PlaceRadiator(const CBuilding& building, const CRoom& room,
                                             const CString& floor, const CRadiatorChoice& chosen,
                                             const CRadiatorStart& start)
{
    const std::optional<std::size_t> place = FindFreePlace(room, building.abstaende, chosen.daten);
    if (!place) {
        return std::nullopt;
    }
    CPlacedRadiator radiator;
    TakeChoice(radiator, chosen, start);
    radiator.nPlatz = *place;
    TakeStartDistances(radiator, building, start);
    if (radiator.strLayer.empty()) {
        radiator.strLayer = LayerOf(start.layer.strName, floor, room.strName);
        radiator.nFarbe = start.layer.nFarbe;
    }
    radiator.ventile = room.ventile;
    return radiator;
}

void TakeChoice(CPlacedRadiator& radiator, const CRadiatorChoice& chosen,
                const CRadiatorStart& start)
{
    if (chosen.block) {
        radiator.strBlock = *chosen.block;
    } else if (ProductOf(radiator) != chosen.produkt) {
        const CString block = BlockOf(chosen.produkt.strArt, chosen.produkt.strProdukt);
        radiator.strBlock = block.empty() ? start.strBlock : block;
    }
    if (chosen.layer) {
        radiator.strLayer = chosen.layer->strName;
        radiator.nFarbe = chosen.layer->nFarbe;
    }
    radiator.strHersteller = chosen.produkt.strHersteller;
    radiator.strArt = chosen.produkt.strArt;
    radiator.strProdukt = chosen.produkt.strProdukt;
    radiator.strTyp = chosen.strTyp;
    radiator.daten = chosen.daten;
    radiator.bVonHand = false;
}

} // namespace workbench
