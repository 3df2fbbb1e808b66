#include "workbench/building_json.h"

#include "platform/format.h"
#include "workbench/json_fields.h"

#include <set>

namespace {

constexpr int kFormatVersion = 1;

/// No room of a building reaches these; beyond them a unit was mistaken.
constexpr double kLargestLength = 20000.0;
constexpr double kLargestDemand = 50000.0;

/// The module never searches for shorter valve numbers.
constexpr std::size_t kShortestVentilNr = 30;

/// Stands for "no limit" on a depth.
constexpr double kAnyDepth = kLargestLength;

/// Space that every radiator of the building keeps, in mm.
struct Clearance
{
    double floor = 0.0;
    double sill = 0.0;
};

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

Clearance ReadClearance(CJsonFields fields)
{
    Clearance clearance;
    clearance.floor = fields.Number("floor", 0.0, kLargestLength);
    clearance.sill = fields.Number("sill", 0.0, kLargestLength);
    fields.RefuseUnknown();
    return clearance;
}

/// A radiator stands under a window or before a wall. Only the window has a sill above it to which
/// the air needs a gap.
void ReadPlace(CJsonFields& room, const Clearance& clearance, CSizeLimits& limits)
{
    const bool window = room.Has("window");
    if (window == room.Has("wall")) {
        room.Fail(L"window", L"serve uno solo tra \"window\" e \"wall\"");
    }
    CJsonFields place = room.Object(window ? "window" : "wall");
    const char* heightName = window ? "sill" : "height";
    const double height = place.Number(heightName, 0.0, kLargestLength);
    limits.hoeheMax = height - clearance.floor - (window ? clearance.sill : 0.0);
    limits.laengeMax = place.Number("width", 0.0, kLargestLength);
    place.RefuseUnknown();
    if (limits.hoeheMax <= 0.0) {
        place.Fail(window ? L"sill" : L"height", L"non lascia spazio sopra la distanza da terra");
    }
}

void ReadProduct(CJsonFields fields, CRoom& room)
{
    room.strHersteller = fields.Text("maker");
    room.strArt = fields.Text("kind");
    room.strProdukt = fields.Text("product");
    fields.RefuseUnknown();
}

CValveKey ReadValve(CJsonFields fields)
{
    CValveKey key;
    key.strHersteller = fields.Text("maker");
    key.strVentilNr = fields.Text("number");
    fields.RefuseUnknown();
    if (key.strVentilNr.size() < kShortestVentilNr) {
        fields.Fail(L"number", L"ha " + FormatInt(static_cast<long long>(key.strVentilNr.size())) +
                                   L" caratteri, ne servono almeno " +
                                   FormatInt(kShortestVentilNr));
    }
    return key;
}

/// Changes `key` if the object says anything about that valve.
void ReadValveOver(CJsonFields& valves, const char* name, std::optional<CValveKey>& key)
{
    if (valves.TakeNull(name)) {
        key.reset();
    } else if (valves.Has(name)) {
        key = ReadValve(valves.Object(name));
    }
}

/// The valves that an object asks for, and those of `fallback` where it says nothing.
CValveKeys ReadValves(CJsonFields& owner, CValveKeys fallback)
{
    if (owner.Has("valves")) {
        CJsonFields valves = owner.Object("valves");
        ReadValveOver(valves, "supply", fallback.vorlauf);
        ReadValveOver(valves, "return", fallback.ruecklauf);
        valves.RefuseUnknown();
    }
    return fallback;
}

/// What all rooms of a building have in common.
struct Common
{
    CHeatingSystem system;
    Clearance clearance;
    CValveKeys valves;
};

CRoom ReadRoom(CJsonFields fields, const Common& common)
{
    CRoom room;
    room.strName = fields.Text("name");
    fields.SetPlace(L"locale \"" + room.strName + L"\"");
    room.raumtemperatur = fields.Number("temperature", 0.0, 40.0);
    if (room.raumtemperatur >= common.system.ruecklauf) {
        fields.Fail(L"temperature", L"deve essere minore del ritorno, " +
                                        FormatExact(common.system.ruecklauf) + L" °C");
    }
    room.bedarf = fields.Number("demand", 0.0, kLargestDemand);
    room.gedeckt = fields.NumberOr("covered", 0.0, kLargestDemand, 0.0);
    ReadPlace(fields, common.clearance, room.grenzen);
    room.grenzen.tiefeMin = fields.NumberOr("depthMin", 0.0, kLargestLength, 0.0);
    room.grenzen.tiefeMax = fields.NumberOr("depthMax", 0.0, kLargestLength, kAnyDepth);
    if (room.grenzen.tiefeMin > room.grenzen.tiefeMax) {
        fields.Fail(L"depthMin", L"supera \"depthMax\"");
    }
    ReadProduct(fields.Object("radiator"), room);
    room.ventile = ReadValves(fields, common.valves);
    fields.RefuseUnknown();
    return room;
}

/// Names objects of a list by their place, as long as they have no name that was read.
CString PlaceInList(const CString& what, qsizetype index)
{
    return what + L" " + FormatInt(index + 1);
}

CFloor ReadFloor(CJsonFields fields, const CString& file, const Common& common)
{
    CFloor floor;
    floor.strName = fields.Text("name");
    fields.SetPlace(L"piano \"" + floor.strName + L"\"");
    const QJsonArray rooms = fields.Objects("rooms");
    for (qsizetype i = 0; i < rooms.size(); ++i) {
        const CString place = L"piano \"" + floor.strName + L"\", " + PlaceInList(L"locale", i);
        floor.rooms.push_back(ReadRoom(CJsonFields(rooms[i].toObject(), file, place), common));
    }
    fields.RefuseUnknown();
    return floor;
}

void RefuseDuplicates(const CBuilding& building, const CString& file)
{
    std::set<CString> names;
    for (const CFloor& floor : building.floors) {
        for (const CRoom& room : floor.rooms) {
            if (!names.insert(room.strName).second) {
                throw CContentException(file + L": locale \"" + room.strName +
                                        L"\": campo \"name\": il nome è già di un altro locale");
            }
        }
    }
}

} // namespace

CBuilding ReadBuilding(const CString& path)
{
    CJsonFields fields = ReadJsonFile(path);
    if (fields.Number("version", 1.0, 1e6) != kFormatVersion) {
        fields.Fail(L"version", L"il file è di una versione più recente del programma");
    }
    CBuilding building;
    building.strName = fields.Text("name");
    building.system = ReadSystem(fields.Object("system"));
    const Common common = {building.system, ReadClearance(fields.Object("clearance")),
                           ReadValves(fields, {})};
    const QJsonArray floors = fields.Objects("floors");
    fields.RefuseUnknown();
    for (qsizetype i = 0; i < floors.size(); ++i) {
        building.floors.push_back(ReadFloor(
            CJsonFields(floors[i].toObject(), path, PlaceInList(L"piano", i)), path, common));
    }
    RefuseDuplicates(building, path);
    return building;
}
