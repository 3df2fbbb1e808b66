#include "workbench/building/building_json.h"

#include "platform/format.h"
#include "workbench/building/building_layout.h"
#include "workbench/building/floor_overlap.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_note.h"
#include "workbench/building/json_writer.h"
#include "workbench/building/project_json.h"
#include "workbench/building/room_json.h"
#include "workbench/building/valve_keys_json.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <utility>

namespace workbench {

namespace {

constexpr int kOldestVersion = 1;
constexpr int kNewestVersion = kVersionWithPlan;

/// In mm; no building leaves more room than that below a radiator or above it.
constexpr double kLargestClearance = 20000.0;

/// In per cent; beyond it a number was mistaken.
constexpr double kLargestExcess = 1000.0;

/// Outlines drawn along the middle of a wall may overlap by its thickness, in mm.
constexpr double kThickestWall = 300.0;

int ReadVersion(CJsonFields& fields)
{
    const int version = fields.Integer("version", kOldestVersion, std::numeric_limits<int>::max());
    if (version > kNewestVersion) {
        fields.Fail(L"version", L"il file è di una versione più recente del programma");
    }
    return version;
}

CHeatingSystem ReadSystem(CJsonFields fields)
{
    CHeatingSystem system;
    system.vorlauf = fields.Number("supply", 0.0, 110.0);
    system.ruecklauf = fields.Number("return", 0.0, 110.0);
    fields.RefuseUnknown();
    if (!system.IsPlausible()) {
        fields.Fail(L"return", L"deve essere maggiore di 0 e minore di \"supply\"");
    }
    return system;
}

CClearance ReadClearance(CJsonFields fields)
{
    CClearance clearance;
    clearance.boden = fields.Number("floor", 0.0, kLargestClearance);
    clearance.sturz = fields.Number("sill", 0.0, kLargestClearance);
    fields.RefuseUnknown();
    return clearance;
}

using Rooms = std::vector<std::shared_ptr<const CRoom>>;

void RefuseOverlaps(const Rooms& rooms, CJsonFields& floor)
{
    std::vector<CFloorRect> rects;
    rects.reserve(rooms.size());
    for (const auto& room : rooms) {
        rects.push_back(room->grundriss);
    }
    if (const auto overlap = FindOverlap(rects, kThickestWall)) {
        const double depth = OverlapOf(rects[overlap->nFirst], rects[overlap->nSecond]);
        floor.SetPlace(L"locale \"" + rooms[overlap->nSecond]->strName + L"\"");
        floor.Fail(L"outline", L"si sovrappone al locale \"" + rooms[overlap->nFirst]->strName +
                                   L"\" per " + FormatPlain(depth) + L" mm");
    }
}

Rooms ReadRooms(CJsonFields& floor, const CRoomsOfFile& common)
{
    std::vector<CRoom> rooms;
    for (CJsonFields& room : floor.Objects("rooms", L"locale")) {
        rooms.push_back(ReadRoom(std::move(room), common));
    }
    if (common.nVersion < kVersionWithPlan) {
        LayOutFloor(rooms);
    }
    Rooms shared;
    for (CRoom& room : rooms) {
        shared.push_back(std::make_shared<const CRoom>(std::move(room)));
    }
    return shared;
}

CFloor ReadFloor(CJsonFields fields, const CRoomsOfFile& common)
{
    CFloor floor;
    floor.strName = fields.Text("name");
    floor.strNotiz = NoteOf(fields);
    fields.SetPlace(L"piano \"" + floor.strName + L"\"");
    floor.rooms = ReadRooms(fields, common);
    fields.RefuseUnknown();
    RefuseOverlaps(floor.rooms, fields);
    return floor;
}

void RefuseSameRoomNames(const CBuilding& building, CJsonFields& fields)
{
    std::set<CString> names;
    for (const CFloor& floor : building.floors) {
        for (const auto& room : floor.rooms) {
            if (!names.insert(room->strName).second) {
                fields.SetPlace(L"locale \"" + room->strName + L"\"");
                fields.Fail(L"name", L"il nome è già di un altro locale");
            }
        }
    }
}

/// The first version let floors share a name; there the later ones get a number.
void TellFloorsApart(CBuilding& building, int version, CJsonFields& fields)
{
    std::set<CString> names;
    std::map<CString, int> numbers;
    for (CFloor& floor : building.floors) {
        const CString name = floor.strName;
        if (version >= kVersionWithPlan && names.contains(name)) {
            fields.SetPlace(L"piano \"" + name + L"\"");
            fields.Fail(L"name", L"il nome è già di un altro piano");
        }
        int& number = numbers.try_emplace(name, 1).first->second;
        while (!names.insert(floor.strName).second) {
            floor.strName = name + L" (" + FormatInt(++number) + L")";
        }
    }
}

void WriteFloor(CJsonWriter& writer, const CFloor& floor, const CValveKeys& valvesOfBuilding)
{
    writer.BeginObject(nullptr);
    writer.Text("name", floor.strName);
    WriteNote(writer, floor.strNotiz);
    writer.BeginList("rooms");
    for (const auto& room : floor.rooms) {
        WriteRoom(writer, *room, valvesOfBuilding);
    }
    writer.End();
    writer.End();
}

void WritePair(CJsonWriter& writer, const char* name, const char* firstName, double first,
               const char* secondName, double second)
{
    writer.BeginObject(name, CJsonWriter::Layout::line);
    writer.Number(firstName, first);
    writer.Number(secondName, second);
    writer.End();
}

/// All but the rooms.
std::string FormatFrame(CBuilding building)
{
    for (CFloor& floor : building.floors) {
        floor.rooms.clear();
    }
    return FormatBuilding(building);
}

std::string FormatRoom(const CRoom& room)
{
    CJsonWriter writer;
    writer.BeginList(nullptr);
    WriteRoom(writer, room, {});
    writer.End();
    return writer.Take();
}

bool IsSameFloor(const CFloor& a, const CFloor& b)
{
    return std::ranges::equal(a.rooms, b.rooms, [](const auto& one, const auto& other) {
        return one == other || FormatRoom(*one) == FormatRoom(*other);
    });
}

} // namespace

CBuilding ReadBuilding(CJsonFields fields)
{
    const int version = ReadVersion(fields);
    CBuilding building;
    building.strName = fields.Text("name");
    building.strNotiz = NoteOf(fields);
    building.project = ReadProject(fields);
    building.system = ReadSystem(fields.Object("system"));
    building.abstaende = ReadClearance(fields.Object("clearance"));
    building.ueberschussMax = fields.NumberOr("oversizedAbove", 0.0, kLargestExcess, kUsualExcess);
    building.ventile = ReadValveKeys(fields, {});
    std::vector<CJsonFields> floors = fields.Objects("floors", L"piano");
    fields.RefuseUnknown();
    const CRoomsOfFile common = {version, building.system, building.abstaende, building.ventile};
    for (CJsonFields& floor : floors) {
        building.floors.push_back(ReadFloor(std::move(floor), common));
    }
    RefuseSameRoomNames(building, fields);
    TellFloorsApart(building, version, fields);
    return building;
}

CBuilding ReadBuilding(const CString& path)
{
    return ReadBuilding(ReadJsonFile(path));
}

void WriteBuilding(CJsonWriter& writer, const char* name, const CBuilding& building)
{
    writer.BeginObject(name);
    writer.Number("version", kNewestVersion);
    writer.Text("name", building.strName);
    WriteNote(writer, building.strNotiz);
    WriteProject(writer, building.project);
    WritePair(writer, "system", "supply", building.system.vorlauf, "return",
              building.system.ruecklauf);
    WritePair(writer, "clearance", "floor", building.abstaende.boden, "sill",
              building.abstaende.sturz);
    if (building.ueberschussMax != kUsualExcess) {
        writer.Number("oversizedAbove", building.ueberschussMax);
    }
    WriteValveKeys(writer, building.ventile, {});
    writer.BeginList("floors");
    for (const CFloor& floor : building.floors) {
        WriteFloor(writer, floor, building.ventile);
    }
    writer.End();
    writer.End();
}

std::string FormatBuilding(const CBuilding& building)
{
    CJsonWriter writer;
    WriteBuilding(writer, nullptr, building);
    return writer.Take();
}

bool IsSameBuilding(const CBuilding& a, const CBuilding& b)
{
    return FormatFrame(a) == FormatFrame(b) && std::ranges::equal(a.floors, b.floors, IsSameFloor);
}

void WriteBuilding(const CString& path, const CBuilding& building)
{
    WriteJsonBytes(path, FormatBuilding(building));
}

} // namespace workbench
