#include "workbench/program/radiator_run.h"

#include "platform/format.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/asked_building.h"
#include "workbench/batch/console.h"
#include "workbench/batch/host_folders.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/program/dialog_run.h"
#include "workbench/window/module_calls.h"

#include <QGraphicsScene>

namespace workbench {

namespace {

CString DescribeRadiator(const CString& room, const CRadiatorChoice& chosen)
{
    const CRadiatorProduct& produkt = chosen.produkt;
    return room + L": " + produkt.strHersteller + L" / " + produkt.strArt + L" / " +
           produkt.strProdukt + L" / " + DescribeRow(chosen.strTyp, chosen.daten) + L", layer " +
           chosen.layer->strName;
}

} // namespace

ExitCode RunRadiatorDialog(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    RequireCatalogueFolder();
    const CBuilding building = ReadAskedBuilding(arguments, L"--radiator-dialog");
    // Every floor that was read has rooms.
    const CFloor& floor = building.floors.front();
    const CRadiatorWish wish = WishForRoom(building, floor, *floor.rooms.front());
    StartWindows();
    QGraphicsScene scene;
    CSceneDrawer drawer(scene, ReadDrawingBlocks().heizkoerper.layers);
    const auto chosen = AskForRadiator(wish, drawer);
    return Show((chosen ? DescribeRadiator(wish.strRaum, *chosen)
                        : CString(L"Nessun corpo scaldante scelto")) +
                    L"\n",
                chosen ? ExitCode::ok : ExitCode::cancelled, out, err);
}

} // namespace workbench
