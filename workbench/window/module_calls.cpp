#include "workbench/window/module_calls.h"

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/plan/confirmed_connection.h"
#include "workbench/plan/module_call.h"
#include "workbench/plan/new_radiator.h"
#include "workbench/plan/radiator_list.h"
#include "workbench/plan/wish_handover.h"
#include "workbench/schedule/valve_selection.h"
#include "workbench/window/lent_start.h"

#include <functional>
#include <utility>

namespace workbench {

namespace {

/// Puts what was chosen into the room, for the radiator or as a further one; false if there is no
/// place for it.
bool TakeOver(const CBuilding& building, const CString& floor, CRoom& room,
              std::optional<std::size_t> radiator, const CRadiatorChoice& chosen)
{
    const CRadiatorStart start = ReadRadiatorStart();
    if (radiator) {
        CPlacedRadiator& present = room.heizkoerper[*radiator];
        // What stood there already is not the designer's own choice.
        const bool isSame = IsSameRow(present, chosen) && !present.bVonHand;
        TakeChoice(present, chosen, start);
        TakeStart(present, chosen.start);
        present.bVonHand = !isSame;
        return true;
    }
    auto placed = PlaceRadiator(building, room, floor, chosen, start);
    if (placed) {
        placed->bVonHand = true;
        ConnectLikeLast(*placed, building, start);
        TakeStart(*placed, chosen.start);
        room.heizkoerper.push_back(std::move(*placed));
    }
    return placed.has_value();
}

/// The dialog of connections reads the valves that a radiator has. A file that it cannot take them
/// out of is told with the line, which its exception does not name.
bool CallWithValves(const CValveKeys& keys, const std::function<bool()>& call)
{
    try {
        return CallModule(L"Attacchi e valvole", call);
    } catch (const CModuleFault&) {
        const CRoomValves valves = FetchValves(keys);
        for (const CValveOutcome& valve : {valves.vorlauf, valves.ruecklauf}) {
            if (valve.status == ValveStatus::badFile) {
                throw CModuleFault(L"Attacchi e valvole: " + valve.strNote);
            }
        }
        throw;
    }
}

/// The block that the host keeps for radiators, as the dialog of connections finds it while this
/// lives: the entry of its list of supply graphics that begins so is the one that it shows.
class CShownGraphic
{
public:
    explicit CShownGraphic(const CString& entry)
    {
        reference_host::OverrideHostSetting(reference_host::kSettingHKBlock, entry);
    }
    ~CShownGraphic() { reference_host::ClearHostSettingOverride(reference_host::kSettingHKBlock); }
    CShownGraphic(const CShownGraphic&) = delete;
    CShownGraphic& operator=(const CShownGraphic&) = delete;
};

/// A radiator to come, as far as the dialogs show it before one is chosen.
CPlacedRadiator RadiatorToCome(const CBuilding& building, const CRoom& room)
{
    const CRadiatorStart start = ReadRadiatorStart();
    CPlacedRadiator radiator;
    TakeStartDistances(radiator, building, start);
    radiator.ventile = room.ventile;
    ConnectLikeLast(radiator, building, start);
    return radiator;
}

} // namespace

std::optional<CRadiatorChoice> AskForRadiator(const CRadiatorWish& wish, CDrawer& drawer)
{
    HK_DATEN_VDI3805_UEBERGABE handover = FillHandover(wish);
    CRadiatorLayer layer = wish.layer ? *wish.layer : KeptLayer();
    const CLentBlock block(wish.block ? *wish.block : KeptBlock());
    // Somebody types in the dialog: a warning at a half-typed output would take away the rest of
    // it.
    constexpr bool warnAndWiden = false;
    const int answer = CallModule(L"Scelta del corpo scaldante", [&] {
        return HeizkoerperauswahlVDI3805(&drawer, &handover, layer.strName, layer.nFarbe, true,
                                         warnAndWiden);
    });
    if (answer != 0) {
        return std::nullopt;
    }
    CRadiatorChoice chosen = ReadHandover(handover);
    chosen.layer = layer;
    if (const CHeatingSystem system{handover.Vorlauf, handover.Ruecklauf}; system != wish.system) {
        chosen.system = system;
    }
    if (handover.Raumtemperatur != wish.raumtemperatur) {
        chosen.raumtemperatur = handover.Raumtemperatur;
    }
    chosen.block = block.GetShown();
    return chosen;
}

std::optional<CRadiatorChoice> AskForRadiator(const CBuilding& building, const CRoomRef& ref,
                                              std::optional<std::size_t> radiator, CDrawer& drawer)
{
    const CFloor& floor = building.floors[ref.nFloor];
    const CRoom& room = RoomOf(building, ref);
    const CLentStart start(radiator ? room.heizkoerper.at(*radiator)
                                    : RadiatorToCome(building, room));
    auto chosen = AskForRadiator(radiator ? WishForRadiator(building, floor, room, *radiator)
                                          : WishForRoom(building, floor, room),
                                 drawer);
    if (chosen) {
        chosen->start = start.GetConfirmed();
    }
    return chosen;
}

std::optional<CBuilding> PutRadiator(const CBuilding& building, const CRoomRef& ref,
                                     std::optional<std::size_t> radiator,
                                     const CRadiatorChoice& chosen)
{
    CRoom changed = RoomOf(building, ref);
    if (!TakeOver(building, building.floors[ref.nFloor].strName, changed, radiator, chosen)) {
        return std::nullopt;
    }
    CBuilding result = building;
    const bool isOnly = changed.heizkoerper.size() == 1;
    ReplaceRoom(result, ref, std::move(changed));
    if (isOnly) {
        SetProduct(result, {ref}, chosen.produkt);
    }
    UpdateOutputs(result, ref);
    return result;
}

std::optional<CBuilding> ConnectRadiators(const CBuilding& building,
                                          const std::vector<CRadiatorRef>& radiators,
                                          CDrawer& drawer)
{
    const CPlacedRadiator& first = RadiatorOf(building, radiators.front());
    CConfirmedConnection result;
    result.eingang = result.anschluss = ConnectionToShow(first);
    VDI3805_VENTIL_KV vorlauf = RecordOf(first.ventile.vorlauf);
    VDI3805_VENTIL_KV ruecklauf = ReturnRecordOf(first.ventile);
    // For several radiators the user may leave the connections or the valves as they are.
    bool groupsSelectable = radiators.size() > 1;
    bool fanCoil = false;
    CRadiatorList list(building, radiators);
    const CShownGraphic shown(result.eingang.GrafikAN);
    const bool confirmed = CallWithValves(first.ventile, [&] {
        return ShowVentDlg(result.anschluss, vorlauf, ruecklauf, groupsSelectable, result.bVentile,
                           result.bTyp, fanCoil, list.GetList(), &drawer);
    });
    if (!confirmed) {
        return std::nullopt;
    }
    result.ventile = {KeyOf(vorlauf), KeyOf(ruecklauf)};
    CBuilding changed = building;
    for (const CRadiatorRef& ref : radiators) {
        CPlacedRadiator radiator = RadiatorOf(changed, ref);
        TakeConnection(radiator, result);
        ReplaceRadiator(changed, ref, std::move(radiator));
    }
    return changed;
}

std::optional<CBuilding> ChooseProduct(const CBuilding& building,
                                       const std::vector<CRoomRef>& rooms)
{
    const CRoomRef& first = rooms.front();
    HK_DATEN_VDI3805_UEBERGABE handover =
        FillHandover(WishForRoom(building, building.floors[first.nFloor], RoomOf(building, first)));
    if (CallModule(L"Scelta del prodotto",
                   [&] { return HeizkoerperauswahlVDI3805Tree(&handover); }) != 0) {
        return std::nullopt;
    }
    const CRadiatorProduct product = ReadHandover(handover).produkt;
    if (product == CRadiatorProduct()) {
        return std::nullopt;
    }
    CBuilding changed = building;
    SetProduct(changed, rooms, product);
    return changed;
}

} // namespace workbench
