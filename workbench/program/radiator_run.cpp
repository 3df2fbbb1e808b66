#include "workbench/program/radiator_run.h"

#include "platform/encoding.h"
#include "platform/format.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/program/arguments.h"
#include "workbench/program/batch.h"
#include "workbench/program/dialog_run.h"
#include "workbench/program/host_folders.h"
#include "workbench/window/module_calls.h"

#include <QGraphicsScene>

#include <algorithm>
#include <ostream>

namespace workbench {

namespace {

struct CRoomChoice
{
    CArguments arguments;
    CString strRoom;
};

struct CPlacedRoom
{
    const CFloor* floor = nullptr;
    const CRoom* room = nullptr;
};

void Write(std::ostream& stream, const CString& text)
{
    stream << Utf8FromWide(text) << '\n';
}

/// The room's name is optional, which the other options do not know.
CRoomChoice ParseChoice(std::vector<CString> arguments)
{
    CString room;
    const auto option = std::ranges::find(arguments, kRadiatorDialogOption);
    auto end = std::next(option);
    if (end != arguments.end() && !end->starts_with(L"--")) {
        room = *end++;
    }
    arguments.erase(option, end);
    CRoomChoice choice{ParseArguments(arguments), room};
    if (choice.strRoom.empty()) {
        choice.strRoom = choice.arguments.strRoom;
    }
    return choice;
}

CPlacedRoom FindRoom(const CBuilding& building, const CString& name)
{
    for (const CFloor& floor : building.floors) {
        for (const auto& room : floor.rooms) {
            if (name.empty() || room->strName == name) {
                return {&floor, room.get()};
            }
        }
    }
    throw CArgumentException(CString(kRadiatorDialogOption) + L": l'edificio non ha il locale \"" +
                             name + L"\"");
}

CString DescribeRadiator(const CString& room, const CRadiatorChoice& chosen)
{
    const CRadiatorProduct& produkt = chosen.produkt;
    const HK_DATEN_VDI3805& daten = chosen.daten;
    return room + L": " + produkt.strHersteller + L" / " + produkt.strArt + L" / " +
           produkt.strProdukt + L" / " + chosen.strTyp + L", " + FormatExact(daten.Hoehe) + L" x " +
           FormatExact(daten.Tiefe) + L" x " + FormatExact(daten.Laenge) + L" mm, " +
           FormatFixed(daten.Leistung, 0) + L" W, layer " + chosen.layer->strName;
}

bool Choose(const CRoomChoice& choice, std::ostream& out)
{
    SetCatalogueFolder(choice.arguments);
    CBuilding building = ReadBuilding(choice.arguments.strBuilding);
    building.system = choice.arguments.system.value_or(building.system);
    const CPlacedRoom place = FindRoom(building, choice.strRoom);
    const CRadiatorWish wish = WishForRoom(building, *place.floor, *place.room);
    SetWorkplace(choice.arguments);
    StartWindows();
    QGraphicsScene scene;
    CSceneDrawer drawer(scene, ReadDrawingBlocks().heizkoerper.layers);
    const auto chosen = AskForRadiator(wish, drawer);
    Write(out, chosen ? DescribeRadiator(wish.strRaum, *chosen) : L"Nessun corpo scaldante scelto");
    return chosen.has_value();
}

} // namespace

ExitCode RunRadiatorDialog(const std::vector<CString>& arguments, std::ostream& out,
                           std::ostream& err)
{
    try {
        const CRoomChoice choice = ParseChoice(arguments);
        if (choice.arguments.bHelp) {
            Write(out, GetHelpText());
            return ExitCode::ok;
        }
        return Choose(choice, out) ? ExitCode::ok : ExitCode::cancelled;
    } catch (const CArgumentException& error) {
        Write(err, L"radsel_workbench: " + error.GetErrorMessage());
        return ExitCode::wrongArguments;
    } catch (const CContentException& error) {
        Write(err, L"radsel_workbench: " + error.GetErrorMessage());
        return ExitCode::badBuilding;
    } catch (const CException& error) {
        Write(err, L"radsel_workbench: " + error.GetErrorMessage());
        return ExitCode::unexpected;
    }
}

} // namespace workbench
