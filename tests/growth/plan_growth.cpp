// What the workbench does with the rooms of a building, without its window.

#include "tests/growth/floor.h"
#include "tests/growth/growth.h"

#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tools/make_building_samples.h"
#include "uikit/application.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/batch.h"
#include "workbench/building/building_json.h"
#include "workbench/building/building_layout.h"
#include "workbench/building/floor_overlap.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/keeping/recovery_file.h"
#include "workbench/plan/new_radiator.h"
#include "workbench/plan/new_room.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/plan_history.h"
#include "workbench/plan/radiator_list.h"
#include "workbench/plan/repair.h"
#include "workbench/plan/sizing.h"
#include "workbench/report/plan_dxf.h"
#include "workbench/report/plan_pdf.h"
#include "workbench/schedule/radiator_bill.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_json.h"
#include "workbench/schedule/schedule_text.h"
#include "workbench/schedule/valve_bill.h"
#include "workbench/schedule/valve_text.h"
#include "workbench/workbook/schedule_xlsx.h"

#include <QDate>

#include <sstream>

using namespace reference_host;

namespace workbench {

namespace {

const CString kData = WideFromUtf8(RADSEL_DATA_DIR);

/// A small catalogue of radiators and the sample data besides, with a working place of its own.
class CPlace
{
public:
    CPlace()
    {
        folder.WriteBytes("Prova/hk.tga", "010;2010-05;Prova S.p.A.;2026-01\n"
                                          "100;1;Piastre\n"
                                          "110;1;Tipo 22\n"
                                          "700;1;22/600;M;600;100;1000;1.3;5\n"
                                          "710.01;1;500\n"
                                          "710.01;2;1000\n"
                                          "110;2;Tipo 33\n"
                                          "700;1;33/600;M;600;150;1500;1.3;5\n"
                                          "710.01;1;500\n"
                                          "710.01;2;1000\n");
    }

    const CTempFolder folder;

private:
    CSettingOverride m_catalogues{kSettingHKDir, folder.Path()};
    CSettingOverride m_valves{kSettingVEDir, kData + L"/valves"};
    CSettingOverride m_blocks{kSettingHKBlockFolder, kData + L"/drawing/heizkoerper.dxf"};
    CSettingOverride m_valveBlocks{kSettingValveBlockFolder, kData + L"/drawing/ventile.dxf"};
    CSettingOverride m_records{kSettingDefFolder, folder.Path()};
    CSettingOverride m_local{kSettingLocalPath, folder.Path()};
};

std::size_t Count(int size)
{
    return static_cast<std::size_t>(size);
}

/// Rooms that are all alike and want a radiator of the small catalogue, with so many windows each.
CBuilding Alike(int rooms, int windows, double demand)
{
    CBuilding building = Floor(rooms);
    for (const CRoomRef& ref : AllRooms(building)) {
        CRoom room = RoomOf(building, ref);
        room.bedarf = demand;
        room.gedeckt = 0.0;
        room.strHersteller = L"Prova";
        room.strArt = L"Piastre";
        room.strProdukt = L"Tipo 22";
        room.grundriss.breite = 2000.0 * windows;
        room.heizkoerper.clear();
        room.plaetze.clear();
        for (int i = 0; i < windows; ++i) {
            room.plaetze.push_back({PlaceKind::window, 900.0, 1500.0, Wall::sued, 2000.0 * i});
        }
        room.grenzen = {720.0, 1500.0, 0.0, 200.0};
        ReplaceRoom(building, ref, std::move(room));
    }
    return building;
}

std::vector<CRadiatorRef> AllRadiators(const CBuilding& building)
{
    std::vector<CRadiatorRef> refs;
    for (const CRoomRef& ref : AllRooms(building)) {
        if (!RoomOf(building, ref).heizkoerper.empty()) {
            refs.push_back({ref, 0});
        }
    }
    return refs;
}

void SizeAll(const CBuilding& empty, CWorkCount& count)
{
    const CPlace place;
    const std::vector<CRoomRef> rooms = AllRooms(empty);
    count.Of([&] {
        const CBuilding building = SizeRooms(empty, rooms, {}).building;
        Require(SizeRooms(building, rooms, {}).nSized > 0);
    });
}

void RepairAll(const CBuilding& building, CWorkCount& count)
{
    const CPlace place;
    count.Of([&] { Require(!RepairRooms(building, AllRooms(building), {}).rooms.empty()); });
}

/// A radiator for the last place of a room that is free.
void PlaceInRoom(int size, CWorkCount& count)
{
    const CBuilding building = Alike(1, size, 1000.0);
    CRoom room = RoomOf(building, {0, 0});
    for (int i = 0; i + 1 < size; ++i) {
        CPlacedRadiator radiator;
        radiator.nPlatz = Count(i);
        room.heizkoerper.push_back(radiator);
    }
    CRadiatorChoice chosen;
    chosen.daten.Hoehe = 600.0;
    count.Of([&] {
        Require(PlaceRadiator(building, room, L"Terra", chosen, {})->nPlatz == Count(size) - 1);
    });
}

void Undo(int size, CWorkCount& count)
{
    CBuilding building = Floor(4);
    CPlanHistory history(building);
    count.Of([&] {
        for (int i = 0; i < size; ++i) {
            building.ueberschussMax = i;
            history.Do(L"Modifica", building);
        }
        while (history.CanUndo()) {
            history.Undo();
        }
        while (history.CanRedo()) {
            history.Redo();
            Require(history.Has(history.GetCurrentId()));
        }
    });
}

void ChangeOne(int size, CWorkCount& count)
{
    const CBuilding building = Floor(size);
    CPlanHistory history(building);
    CBuilding next = building;
    CRoom room = RoomOf(next, {0, 0});
    count.Of([&] {
        ReplaceRoom(next, {0, 0}, room);
        history.Do(L"Modifica", next);
        Require(IsSameBuilding(building, history.Current()));
    });
}

void ChangeAndRemoveAll(int size, CWorkCount& count)
{
    const CPlace place;
    CBuilding building = Tower(size);
    std::vector<CRoomRef> rooms = AllRooms(building);
    count.Of(
        [&] {
            ChangeSystem(building, {55.0, 45.0});
            SetProduct(building, rooms, {L"Altovico", L"Radiatori in alluminio", L"Alpe 80"});
        },
        "changed");
    count.Of([&] { CRadiatorList(building, AllRadiators(building)); }, "listed");
    rooms.pop_back();
    count.Of(
        [&] {
            RemoveRadiators(building, AllRadiators(building));
            RemoveRooms(building, rooms);
        },
        "removed");
    Require(AllRooms(building).size() == 1);
}

void FindAndAddRooms(int size, CWorkCount& count)
{
    CBuilding building = Tower(size);
    CNewRoom room;
    room.strFloor = building.floors.front().strName;
    room.strName = L"Nuovo";
    count.Of([&] {
        Require(!FindRoom(building, room.strName).has_value());
        Require(FindFault(building, room).empty());
        AddRoom(building, room);
        Require(KeepRoom(building, room.strName));
    });
}

void LayOut(int size, CWorkCount& count)
{
    const CBuilding building = Floor(size);
    std::vector<CRoom> rooms;
    for (const auto& room : building.floors.front().rooms) {
        rooms.push_back(*room);
    }
    count.Of([&] { LayOutFloor(rooms); });
}

/// Rooms that overlap in one direction and in the other not.
void FindOverlaps(int size, CWorkCount& count)
{
    std::vector<CFloorRect> rects;
    for (int i = 0; i < size; ++i) {
        rects.push_back({0.0, 10.0 * ((7919 * i) % size), 1000.0, 10.0});
        rects.push_back({2000.0 + 10.0 * i, 0.0, 10.0, 1000.0});
    }
    count.Of([&] { Require(!FindOverlap(rects, 1.0)); });
}

void WriteAndRead(int size, CWorkCount& count)
{
    const CTempFolder folder;
    const CBuilding building = Tower(size);
    count.Of([&] { WriteBuilding(folder.Path("casa.json"), building); }, "written");
    std::size_t rooms = 0;
    count.Of([&] { rooms = AllRooms(ReadBuilding(folder.Path("casa.json"))).size(); }, "read");
    Require(rooms == Count(size));
}

void Recover(int size, CWorkCount& count)
{
    const CTempFolder folder;
    const CBuilding building = Floor(size);
    const CRecoveryFile file(folder.Path());
    count.Of([&] {
        file.Write(L"casa.json", L"", building);
        Require(file.Read().has_value());
    });
    for (int i = 0; i < size; ++i) {
        for (const char* const end : {".json", ".lock"}) {
            folder.WriteBytes("recupero-" + std::to_string(2 + i) + end, "");
        }
    }
    count.Of([&] { Require(file.TakeLeft().size() == Count(size)); }, "of others");
}

void ScheduleValves(int size, CWorkCount& count)
{
    const CPlace place;
    const CBuilding building = Floor(size);
    count.Of([&] {
        const CSchedule schedule = SchedulePlan(building);
        Require(MakeValveBill(schedule).nValves > size);
        Require(MakeRadiatorBill(schedule).nRadiators > size / 2);
        schedule.GetUnread();
    });
}

/// Every radiator of another size, so that the bills are long.
CSchedule Scheduled(int size)
{
    CBuilding building = Floor(size);
    int number = 0;
    for (const CRadiatorRef& ref : AllRadiators(building)) {
        CPlacedRadiator radiator = RadiatorOf(building, ref);
        radiator.daten.Laenge += ++number;
        ReplaceRadiator(building, ref, std::move(radiator));
    }
    return SchedulePlan(building);
}

void Format(int size, CWorkCount& count)
{
    const CPlace place;
    const CSchedule schedule = Scheduled(size);
    count.Of([&] { Require(!FormatScheduleText(schedule, true).empty()); }, "as text");
    count.Of([&] { Require(!FormatScheduleCsv(schedule).empty()); }, "as csv");
    count.Of([&] { Require(!FormatScheduleJson(schedule).empty()); }, "as json");
    count.Of([&] { Require(!FormatScheduleXlsx(schedule).empty()); }, "as xlsx");
    count.Of([&] { Require(!FormatValveBill(MakeValveBill(schedule)).empty()); }, "as bill");
}

void Batch(int size, CWorkCount& count)
{
    const CPlace place;
    CArguments arguments;
    arguments.strBuilding = place.folder.Path("casa.json");
    arguments.strOutput = place.folder.Path("out");
    arguments.system = CHeatingSystem{70.0, 55.0};
    WriteBuilding(arguments.strBuilding, Alike(size, 1, 750.0));
    const auto files = [](const CBatchResult& result, const CArguments& asked,
                          const UnreadTeller& /*tell*/) {
        CResultFolder folder(asked.strOutput);
        WriteCsv(folder, result, asked);
        WriteJson(folder, result);
        return folder;
    };
    std::ostringstream out;
    count.Of([&] { Require(RunBatch(arguments, files, out, out) == ExitCode::ok); });
}

void Export(int size, CWorkCount& count)
{
    EnsureApplication();
    const CPlace place;
    CDrawingBlocks blocks = ReadDrawingBlocks();
    CDxfDrawing& drawing = blocks.heizkoerper;
    drawing.blocks.insert(drawing.blocks.begin(), 40 * Count(size), CDxfBlock{L"ALTRO", {}});
    const CBuilding building = Floor(size);
    count.Of([&] { Require(!FormatPlanDxf(building, drawing, blocks.Valves()).empty()); },
             "as dxf");
    count.Of(
        [&] {
            Require(WritePlanPdf(place.folder.Path("piano.pdf"), building, drawing, blocks.Valves(),
                                 QDate(2026, 3, 1)) > 1);
        },
        "as pdf");
}

} // namespace

} // namespace workbench

std::vector<CGrowthCase> PlanCases()
{
    using namespace workbench;
    return {
        {"Sizing", "rooms", 10, [](int n, CWorkCount& c) { SizeAll(Alike(n, 1, 750.0), c); }},
        {"Repair", "rooms", 4, [](int n, CWorkCount& c) { RepairAll(Alike(n, 1, 3000.0), c); }},
        {"RepairOfOneRoom", "windows", 4,
         [](int n, CWorkCount& c) { RepairAll(Alike(1, n, 1200.0 * n), c); }},
        {"PlaceForARadiator", "windows", 20, PlaceInRoom},
        {"UndoAndRedo", "steps", 50, Undo},
        {"ChangeOfOneRoom", "rooms", 100, ChangeOne},
        {"AllRooms", "rooms", 50, ChangeAndRemoveAll},
        {"NewRoom", "rooms", 100, FindAndAddRooms},
        {"LayoutOfAFloor", "rooms", 50, LayOut},
        {"OverlapOfRooms", "rooms", 100, FindOverlaps},
        {"Building", "rooms", 8, WriteAndRead},
        {"RecoveryFile", "rooms", 8, Recover},
        {"Schedule", "rooms", 10, ScheduleValves},
        {"BatchRun", "rooms", 3, Batch},
        {"FormattedSchedule", "rooms", 4, Format},
        {"Plan", "rooms", 6, Export},
    };
}
