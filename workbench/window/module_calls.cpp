#include "workbench/window/module_calls.h"

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/host_prefs.h"
#include "workbench/plan/new_radiator.h"
#include "workbench/plan/radiator_list.h"
#include "workbench/plan/room_request.h"

namespace workbench {

namespace {

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

/// The block that the designer drew radiators with last; empty if there is none.
CString LastBlock()
{
    CString block;
    lmGetHKBlock(block);
    return block;
}

/// The room's radiator as the dialog left it; nothing if there is no place for it.
CPlacedRadiator* TakeOver(const CBuilding& building, const CString& floor, CRoom& room,
                          std::optional<std::size_t> radiator,
                          const HK_DATEN_VDI3805_UEBERGABE& chosen, const CString& layer, int farbe)
{
    if (radiator) {
        CPlacedRadiator& placed = room.heizkoerper[*radiator];
        TakeChoice(placed, chosen);
        placed.strLayer = layer;
        placed.nFarbe = farbe;
        return &placed;
    }
    const auto placed = PlaceRadiator(building, room, floor, chosen, layer, farbe);
    return placed ? &room.heizkoerper.emplace_back(*placed) : nullptr;
}

/// What the connection dialog gives back.
struct CConnectionResult
{
    ConnValues anschluss;
    CValveKeys ventile;
    bool bVentile = true;
    bool bTyp = true;
};

void Apply(const CConnectionResult& result, CPlacedRadiator& radiator)
{
    if (result.bTyp) {
        radiator.anschluss = result.anschluss;
        if (result.anschluss.WandAbstand > 0.0) {
            radiator.abstandWand = result.anschluss.WandAbstand;
        }
    }
    if (result.bVentile) {
        radiator.anschluss.GrafikAN = result.anschluss.GrafikAN;
        radiator.anschluss.GrafikRI = result.anschluss.GrafikRI;
        radiator.ventile = result.ventile;
    }
}

} // namespace

std::optional<CBuilding> ChooseRadiator(const CBuilding& building, const CRoomRef& room,
                                        std::optional<std::size_t> radiator, CDrawer& drawer)
{
    const CFloor& floor = building.floors[room.nFloor];
    CRoom changed = RoomOf(building, room);
    HK_DATEN_VDI3805_UEBERGABE uebergabe = MakeRequest(building, floor, changed, radiator);
    CString layer;
    int farbe = 0;
    if (radiator) {
        layer = changed.heizkoerper[*radiator].strLayer;
        farbe = changed.heizkoerper[*radiator].nFarbe;
    } else {
        lmGetHKLayer(layer);
        lmGetHKLayerColor(farbe);
    }
    const CString blockBefore = LastBlock();
    if (HeizkoerperauswahlVDI3805(&drawer, &uebergabe, layer, farbe, true, true) != 0) {
        return std::nullopt;
    }
    CPlacedRadiator* const placed =
        TakeOver(building, floor.strName, changed, radiator, uebergabe, layer, farbe);
    if (placed == nullptr) {
        return std::nullopt;
    }
    // A block that the designer picked in the dialog wins over the one for the kind.
    if (const CString block = LastBlock(); block != blockBefore) {
        placed->strBlock = block;
    }
    CBuilding result = building;
    const bool isOnly = changed.heizkoerper.size() == 1;
    ReplaceRoom(result, room, std::move(changed));
    if (isOnly) {
        SetProduct(result, {room}, uebergabe.Hersteller, uebergabe.Art, uebergabe.Produkt);
    }
    UpdateOutputs(result, room);
    return result;
}

std::optional<CBuilding> ConnectRadiators(const CBuilding& building,
                                          const std::vector<CRadiatorRef>& radiators,
                                          CDrawer& drawer)
{
    const CPlacedRadiator& first = RadiatorOf(building, radiators.front());
    const CConnectionTexts texts = ConnectionOf(first);
    CConnectionResult result;
    result.anschluss = first.anschluss;
    result.anschluss.AnschlussAN = texts.strVorlauf;
    result.anschluss.AnschlussRI = texts.strRuecklauf;
    result.anschluss.WandAbstand = first.abstandWand;
    VDI3805_VENTIL_KV vorlauf = RecordOf(first.ventile.vorlauf);
    VDI3805_VENTIL_KV ruecklauf = RecordOf(first.ventile.ruecklauf);
    // For several radiators the user may leave the connections or the valves as they are.
    bool groupsSelectable = radiators.size() > 1;
    bool fanCoil = false;
    CRadiatorList list(building, radiators);
    if (!ShowVentDlg(result.anschluss, vorlauf, ruecklauf, groupsSelectable, result.bVentile,
                     result.bTyp, fanCoil, list.GetList(), &drawer)) {
        return std::nullopt;
    }
    result.ventile = {KeyOf(vorlauf), KeyOf(ruecklauf)};
    CBuilding changed = building;
    for (const CRadiatorRef& ref : radiators) {
        CPlacedRadiator radiator = RadiatorOf(changed, ref);
        Apply(result, radiator);
        ReplaceRadiator(changed, ref, std::move(radiator));
    }
    return changed;
}

std::optional<CBuilding> ChooseProduct(const CBuilding& building,
                                       const std::vector<CRoomRef>& rooms)
{
    const CRoomRef& first = rooms.front();
    HK_DATEN_VDI3805_UEBERGABE uebergabe =
        MakeRequest(building, building.floors[first.nFloor], RoomOf(building, first));
    if (HeizkoerperauswahlVDI3805Tree(&uebergabe) != 0) {
        return std::nullopt;
    }
    CBuilding changed = building;
    SetProduct(changed, rooms, uebergabe.Hersteller, uebergabe.Art, uebergabe.Produkt);
    return changed;
}

} // namespace workbench
