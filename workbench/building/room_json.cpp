#include "workbench/building/room_json.h"

#include "platform/encoding.h"
#include "platform/format.h"
#include "workbench/building/json_fields.h"
#include "workbench/building/json_note.h"
#include "workbench/building/json_writer.h"
#include "workbench/building/placed_radiator_json.h"
#include "workbench/building/valve_keys_json.h"

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

/// No room of a building reaches these; beyond them a unit was mistaken.
constexpr double kLargestLength = kAnyDepth;
constexpr double kLargestDemand = 50000.0;
constexpr double kLargestSide = 1e6;
constexpr double kFarthest = 1e9;

/// In mm; decimal fractions do not add up exactly.
constexpr double kRounding = 1e-6;

/// In the order of Wall.
constexpr std::wstring_view kSides[] = {L"south", L"east", L"north", L"west"};

double LengthOf(Wall wall, const CFloorRect& outline)
{
    return wall == Wall::sued || wall == Wall::nord ? outline.breite : outline.tiefe;
}

double ReadSide(CJsonFields& outline, const char* name)
{
    const double side = outline.Number(name, 0.0, kLargestSide);
    if (side <= 0.0) {
        outline.Fail(WideFromUtf8(name), L"deve essere maggiore di 0");
    }
    return side;
}

CFloorRect ReadOutline(CJsonFields fields)
{
    CFloorRect outline;
    outline.x = fields.Number("x", -kFarthest, kFarthest);
    outline.y = fields.Number("y", -kFarthest, kFarthest);
    outline.breite = ReadSide(fields, "width");
    outline.tiefe = ReadSide(fields, "depth");
    fields.RefuseUnknown();
    return outline;
}

void WriteOutline(CJsonWriter& writer, const CFloorRect& outline)
{
    writer.BeginObject("outline", CJsonWriter::Layout::line);
    writer.Number("x", outline.x);
    writer.Number("y", outline.y);
    writer.Number("width", outline.breite);
    writer.Number("depth", outline.tiefe);
    writer.End();
}

Wall ReadWall(CJsonFields& fields)
{
    const CString text = fields.Text("side");
    const auto side = std::ranges::find(kSides, text);
    if (side == std::end(kSides)) {
        fields.Fail(L"side", L"atteso \"south\", \"east\", \"north\" o \"west\"");
    }
    return static_cast<Wall>(side - std::begin(kSides));
}

void ReadPosition(CJsonFields& fields, const CFloorRect& outline, CRadiatorPlace& place)
{
    place.wand = ReadWall(fields);
    place.abstand = fields.Number("offset", 0.0, kLargestSide);
    const double length = LengthOf(place.wand, outline);
    if (place.abstand + place.breite > length + kRounding) {
        fields.Fail(L"offset",
                    L"il posto esce dalla sua parete, lunga " + FormatPlain(length) + L" mm");
    }
}

/// The window or the wall of an object, and where it is if the file has a plan.
CRadiatorPlace ReadPlace(CJsonFields& owner, const CRoom& room, const CRoomsOfFile& common)
{
    const bool window = owner.Has("window");
    if (window == owner.Has("wall")) {
        owner.Fail(L"window", L"serve uno solo tra \"window\" e \"wall\"");
    }
    CJsonFields fields = owner.Object(window ? "window" : "wall");
    CRadiatorPlace place;
    place.art = window ? PlaceKind::window : PlaceKind::wall;
    place.hoehe = fields.Number(window ? "sill" : "height", 0.0, kLargestLength);
    place.breite = fields.Number("width", 0.0, kLargestLength);
    if (common.nVersion >= kVersionWithPlan) {
        ReadPosition(fields, room.grundriss, place);
    }
    fields.RefuseUnknown();
    if (LimitsOfPlace(room, place, common.clearance).hoeheMax <= 0.0) {
        fields.Fail(window ? L"sill" : L"height", L"non lascia spazio sopra la distanza da terra");
    }
    return place;
}

void WritePlace(CJsonWriter& writer, const CRadiatorPlace& place)
{
    const bool window = place.art == PlaceKind::window;
    writer.BeginObject(nullptr, CJsonWriter::Layout::line);
    writer.BeginObject(window ? "window" : "wall");
    writer.Number(window ? "sill" : "height", place.hoehe);
    writer.Number("width", place.breite);
    writer.Text("side", CString(kSides[static_cast<std::size_t>(place.wand)]));
    writer.Number("offset", place.abstand);
    writer.End();
    writer.End();
}

void ReadPlaces(CJsonFields& fields, const CRoomsOfFile& common, CRoom& room)
{
    if (common.nVersion < kVersionWithPlan) {
        room.plaetze = {ReadPlace(fields, room, common)};
        return;
    }
    room.grundriss = ReadOutline(fields.Object("outline"));
    for (CJsonFields& place : fields.Objects("places", L"posto")) {
        room.plaetze.push_back(ReadPlace(place, room, common));
        place.RefuseUnknown();
    }
}

void ReadLimits(CJsonFields& fields, const CClearance& clearance, CRoom& room)
{
    room.grenzen.tiefeMin = fields.NumberOr("depthMin", 0.0, kLargestLength, 0.0);
    room.grenzen.tiefeMax = fields.NumberOr("depthMax", 0.0, kLargestLength, kAnyDepth);
    if (room.grenzen.tiefeMin > room.grenzen.tiefeMax) {
        fields.Fail(L"depthMin", L"supera \"depthMax\"");
    }
    room.grenzen = LimitsOfPlace(room, room.plaetze.front(), clearance);
}

void ReadProduct(CJsonFields fields, CRoom& room)
{
    room.strHersteller = fields.ForeignText("maker");
    room.strArt = fields.ForeignText("kind");
    room.strProdukt = fields.ForeignText("product");
    fields.RefuseUnknown();
}

void WriteProduct(CJsonWriter& writer, const CRoom& room)
{
    writer.BeginObject("radiator");
    writer.Text("maker", room.strHersteller);
    writer.Text("kind", room.strArt);
    writer.Text("product", room.strProdukt);
    writer.End();
}

void ReadRadiators(CJsonFields& fields, CRoom& room)
{
    if (!fields.Has("radiators")) {
        return;
    }
    for (CJsonFields& item : fields.Objects("radiators", L"corpo scaldante", true)) {
        CPlacedRadiator radiator = ReadPlacedRadiator(item, room.plaetze.size());
        if (std::ranges::count(room.heizkoerper, radiator.nPlatz, &CPlacedRadiator::nPlatz) > 0) {
            item.Fail(L"place", L"il posto è già occupato");
        }
        room.heizkoerper.push_back(std::move(radiator));
    }
}

void ReadDemand(CJsonFields& fields, const CHeatingSystem& system, CRoom& room)
{
    room.raumtemperatur = fields.Number("temperature", 0.0, 40.0);
    if (room.raumtemperatur >= system.ruecklauf) {
        fields.Fail(L"temperature",
                    L"deve essere minore del ritorno, " + FormatExact(system.ruecklauf) + L" °C");
    }
    room.bedarf = fields.Number("demand", 0.0, kLargestDemand);
    room.gedeckt = fields.NumberOr("covered", 0.0, kLargestDemand, 0.0);
}

void WriteUnless(CJsonWriter& writer, const char* name, double value, double usual)
{
    if (value != usual) {
        writer.Number(name, value);
    }
}

template <class Items, class Write>
void WriteList(CJsonWriter& writer, const char* name, const Items& items, Write write)
{
    writer.BeginList(name);
    for (const auto& item : items) {
        write(writer, item);
    }
    writer.End();
}

} // namespace

CRoom ReadRoom(CJsonFields fields, const CRoomsOfFile& common)
{
    CRoom room;
    room.strName = fields.Text("name");
    room.strNotiz = NoteOf(fields);
    fields.SetPlace(L"locale \"" + room.strName + L"\"");
    ReadDemand(fields, common.system, room);
    ReadPlaces(fields, common, room);
    ReadLimits(fields, common.clearance, room);
    ReadProduct(fields.Object("radiator"), room);
    room.ventile = ReadValveKeys(fields, common.valves);
    if (common.nVersion >= kVersionWithPlan) {
        ReadRadiators(fields, room);
    }
    fields.RefuseUnknown();
    return room;
}

void WriteRoom(CJsonWriter& writer, const CRoom& room, const CValveKeys& valvesOfBuilding)
{
    writer.BeginObject(nullptr);
    writer.Text("name", room.strName);
    WriteNote(writer, room.strNotiz);
    writer.Number("temperature", room.raumtemperatur);
    writer.Number("demand", room.bedarf);
    WriteUnless(writer, "covered", room.gedeckt, 0.0);
    WriteOutline(writer, room.grundriss);
    WriteList(writer, "places", room.plaetze, WritePlace);
    WriteUnless(writer, "depthMin", room.grenzen.tiefeMin, 0.0);
    WriteUnless(writer, "depthMax", room.grenzen.tiefeMax, kAnyDepth);
    WriteProduct(writer, room);
    WriteValveKeys(writer, room.ventile, valvesOfBuilding);
    if (!room.heizkoerper.empty()) {
        WriteList(writer, "radiators", room.heizkoerper, WritePlacedRadiator);
    }
    writer.End();
}

} // namespace workbench
