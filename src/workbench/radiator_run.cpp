#include "workbench/radiator_run.h"

#include "frame/entry_points.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/format.h"
#include "workbench/arguments.h"
#include "workbench/batch.h"
#include "workbench/building_json.h"
#include "workbench/dialog_run.h"
#include "workbench/drawing/dxf_blocks.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/host_prefs/host_settings.h"

#include <QGraphicsScene>

#include <algorithm>
#include <ostream>

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
        for (const CRoom& room : floor.rooms) {
            if (name.empty() || room.strName == name) {
                return {&floor, &room};
            }
        }
    }
    throw CArgumentException(CString(kRadiatorDialogOption) + L": l'edificio non ha il locale \"" +
                             name + L"\"");
}

/// The sizes of the product within a range; the whole range if there are none.
void Narrow(const OCArray<double>& sizes, double& min, double& max)
{
    double lowest = max;
    double highest = min;
    for (const double size : sizes) {
        if (size >= min && size <= max) {
            lowest = std::min(lowest, size);
            highest = std::max(highest, size);
        }
    }
    if (lowest <= highest) {
        min = lowest;
        max = highest;
    }
}

HK_DATEN_VDI3805_UEBERGABE MakeHandover(const CPlacedRoom& place, const CHeatingSystem& system)
{
    const CRoom& room = *place.room;
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Hersteller = room.strHersteller;
    uebergabe.Art = room.strArt;
    uebergabe.Produkt = room.strProdukt;
    uebergabe.Leistung = room.GetLeistung();
    uebergabe.LaengeMax = room.grenzen.laengeMax;
    uebergabe.HoeheMax = room.grenzen.hoeheMax;
    uebergabe.TiefeMin = room.grenzen.tiefeMin;
    uebergabe.TiefeMax = room.grenzen.tiefeMax;
    uebergabe.Vorlauf = system.vorlauf;
    uebergabe.Ruecklauf = system.ruecklauf;
    uebergabe.Raumtemperatur = room.raumtemperatur;
    uebergabe.Raumname = place.floor->strName + L"." + room.strName;
    uebergabe.RaumBedarf = room.bedarf;
    uebergabe.RaumGedeckt = room.gedeckt;
    uebergabe.NeuLesen = 1;

    // The dialog offers the sizes of the product and falls back to all of them where it is given
    // another one.
    OCArray<double> heights;
    OCArray<double> depths;
    Read_HK_Masse(uebergabe, heights, depths);
    Narrow(heights, uebergabe.HoeheMin, uebergabe.HoeheMax);
    Narrow(depths, uebergabe.TiefeMin, uebergabe.TiefeMax);
    return uebergabe;
}

std::vector<CDxfLayer> LayersOfBlocks()
{
    CString blocks;
    lmGetDWGDefPath(LumoDWGDefsNames::heizkoerper, blocks);
    auto read = ReadDxfFile(blocks);
    const auto* drawing = std::get_if<CDxfDrawing>(&read);
    return drawing != nullptr ? drawing->layers : std::vector<CDxfLayer>();
}

CString DescribeRadiator(const HK_DATEN_VDI3805_UEBERGABE& uebergabe, const CString& layer)
{
    const HK_DATEN_VDI3805& daten = uebergabe.Daten;
    return uebergabe.Raumname + L": " + uebergabe.Hersteller + L" / " + uebergabe.Art + L" / " +
           uebergabe.Produkt + L" / " + uebergabe.TypName + L", " + FormatExact(daten.Hoehe) +
           L" x " + FormatExact(daten.Tiefe) + L" x " + FormatExact(daten.Laenge) + L" mm, " +
           FormatFixed(daten.Leistung, 0) + L" W, layer " + layer;
}

bool Choose(const CRoomChoice& choice, std::ostream& out)
{
    if (!choice.arguments.strCatalogues.empty()) {
        OverrideHostSetting(kSettingHKDir, choice.arguments.strCatalogues);
    }
    const CBuilding building = ReadBuilding(choice.arguments.strBuilding);
    HK_DATEN_VDI3805_UEBERGABE uebergabe = MakeHandover(
        FindRoom(building, choice.strRoom), choice.arguments.system.value_or(building.system));
    CString layer;
    int layerColor = 0;
    lmGetHKLayer(layer);
    lmGetHKLayerColor(layerColor);
    SetWorkplace(choice.arguments);
    StartWindows();
    QGraphicsScene scene;
    CSceneDrawer drawer(scene, LayersOfBlocks());
    const bool chosen =
        HeizkoerperauswahlVDI3805(&drawer, &uebergabe, layer, layerColor, true, true) == 0;
    Write(out, chosen ? DescribeRadiator(uebergabe, layer) : L"Nessun corpo scaldante scelto");
    return chosen;
}

} // namespace

int RunRadiatorDialog(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err)
{
    try {
        const CRoomChoice choice = ParseChoice(arguments);
        if (choice.arguments.bHelp) {
            Write(out, GetHelpText());
            return 0;
        }
        return static_cast<int>(Choose(choice, out) ? ExitCode::ok : ExitCode::cancelled);
    } catch (const CException& error) {
        Write(err, L"radsel_workbench: " + error.GetErrorMessage());
        return 1;
    }
}
