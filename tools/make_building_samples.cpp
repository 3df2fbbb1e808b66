#include "tools/make_building_samples.h"

#include "platform/format.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <random>

namespace workbench {

namespace {

constexpr std::size_t kRoomsOfFloor = 200;
/// A wing is two rows of rooms, one on each side of its corridor.
constexpr std::size_t kRoomsOfRow = 20;
constexpr std::size_t kRoomsOfWing = 2 * kRoomsOfRow;

constexpr double kInnerWall = 100.0;
constexpr double kRoomDepth = 5000.0;
constexpr double kCorridor = 1800.0;
constexpr double kCourt = 8000.0;
constexpr double kWingDepth = 2 * (kRoomDepth + kInnerWall) + kCorridor;

/// What a room leaves of its facade at least, in mm.
constexpr double kPier = 800.0;

constexpr CHeatingSystem kSystem = {70.0, 55.0};
constexpr CClearance kClearance = {100.0, 80.0};

struct CProduct
{
    const wchar_t* maker;
    const wchar_t* kind;
    const wchar_t* product;
};

constexpr CProduct kProducts[] = {
    {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 22"},
    {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 33"},
    {L"Valmorena", L"Radiatori a piastra compatti", L"Tipo 21"},
    {L"Thörlinger", L"Flachheizkörper profiliert", L"Typ 22"},
    {L"Thörlinger", L"Flachheizkörper mit Einbauventil", L"Typ V 33"},
    {L"Altovico", L"Radiatori in alluminio", L"Alpe 80"},
    {L"Altovico", L"Radiatori tubolari in acciaio", L"4 colonne"},
};

/// The generator's own distributions differ from library to library.
class CDice
{
public:
    /// One of `first`, `first` + `step`, ... up to `last`.
    double Roll(double first, double last, double step)
    {
        const auto sides = static_cast<unsigned>(std::lround((last - first) / step)) + 1;
        return first + step * static_cast<double>(m_engine() % sides);
    }

    template <class T, std::size_t N>
    const T& Pick(const T (&items)[N])
    {
        return items[m_engine() % N];
    }

private:
    std::mt19937 m_engine{20260301};
};

CValveKeys SampleValves()
{
    return {CValveKey{L"Fontespada", L"020001011500000000010000000004000200"},
            CValveKey{L"Fontespada", L"020002011500000000010000000076002600"}};
}

CString NameOf(std::size_t floor, std::size_t room)
{
    const CString number = FormatInt(static_cast<long long>(room) + 1);
    return L"Locale " + FormatInt(static_cast<long long>(floor) + 1) + L"." +
           CString(3 - std::min<std::size_t>(3, number.size()), L'0') + number;
}

CRadiatorPlace MakeWindow(CDice& dice, const CRoom& room, Wall wall)
{
    CRadiatorPlace place;
    place.hoehe = dice.Roll(800.0, 1000.0, 50.0);
    place.breite = dice.Roll(1200.0, room.grundriss.breite - kPier, 100.0);
    place.wand = wall;
    place.abstand = (room.grundriss.breite - place.breite) / 2.0;
    return place;
}

CRadiatorPlace MakeFreeWall(const CRoom& room)
{
    CRadiatorPlace place;
    place.art = PlaceKind::wall;
    place.hoehe = 2000.0;
    place.breite = 1200.0;
    place.wand = Wall::ost;
    place.abstand = (room.grundriss.tiefe - place.breite) / 2.0;
    return place;
}

void MakePlaces(CDice& dice, bool south, CRoom& room)
{
    room.plaetze = {MakeWindow(dice, room, south ? Wall::sued : Wall::nord)};
    if (dice.Roll(1.0, 4.0, 1.0) == 1.0) {
        room.plaetze.push_back(MakeFreeWall(room));
    }
    room.grenzen.tiefeMax = 20000.0;
    room.grenzen = LimitsOfPlace(room, room.plaetze.front(), kClearance);
}

void MakeDemand(CDice& dice, bool south, CRoom& room)
{
    const double area = room.grundriss.breite * room.grundriss.tiefe * 1e-6;
    const double load = south ? dice.Roll(45.0, 60.0, 1.0) : dice.Roll(55.0, 75.0, 1.0);
    room.bedarf = 10.0 * std::round(area * load / 10.0);
    room.raumtemperatur = 20.0;
    if (dice.Roll(1.0, 20.0, 1.0) == 1.0) {
        room.gedeckt = 200.0;
    }
    room.strNotiz = L"\"" + FormatExact(area) + L" m2, " + FormatExact(load) + L" W/m2\"";
}

/// The rows of a wing grow eastwards; `east` is where the next room begins.
CRoom MakeRoom(CDice& dice, std::size_t floor, std::size_t number, double& east)
{
    const std::size_t wing = number / kRoomsOfWing;
    const bool south = number % kRoomsOfWing < kRoomsOfRow;
    if (number % kRoomsOfRow == 0) {
        east = 0.0;
    }
    CRoom room;
    room.strName = NameOf(floor, number);
    room.grundriss = {east, static_cast<double>(wing) * (kWingDepth + kCourt),
                      dice.Roll(3000.0, 5000.0, 100.0), kRoomDepth};
    room.grundriss.y += south ? 0.0 : kWingDepth - kRoomDepth;
    east += room.grundriss.breite + kInnerWall;
    MakePlaces(dice, south, room);
    MakeDemand(dice, south, room);
    const CProduct& product = dice.Pick(kProducts);
    room.strHersteller = product.maker;
    room.strArt = product.kind;
    room.strProdukt = product.product;
    room.ventile = SampleValves();
    return room;
}

CPlacedRadiator MakeRadiator(const CRoom& room)
{
    CPlacedRadiator radiator;
    radiator.strHersteller = room.strHersteller;
    radiator.strArt = room.strArt;
    radiator.strProdukt = room.strProdukt;
    radiator.daten.Hoehe = 600.0;
    radiator.daten.Tiefe = 102.0;
    radiator.daten.Laenge = std::min(1000.0, room.plaetze.front().breite);
    radiator.daten.Leistung = room.GetLeistung();
    radiator.daten.LeistungEN442 = std::round(room.GetLeistung() * 1.2755);
    radiator.daten.Bauart = L'M';
    radiator.daten.Exponent = 1.3275;
    radiator.daten.Inhalt = 5.4;
    radiator.strTyp = L"600x" + FormatExact(radiator.daten.Laenge);
    radiator.abstandWand = 0.05;
    radiator.abstandBoden = 0.1;
    radiator.strLayer = L"H_HEIZKOERPER";
    radiator.nFarbe = 1;
    radiator.ventile = room.ventile;
    return radiator;
}

/// Both points at the left end, the flow above.
void Connect(ConnValues& values)
{
    values.Name = L"Stesso lato, a sinistra";
    values.PosAN = {-0.5, 0.0, 0.5};
    values.PosRI = {-0.5, 0.0, -0.5};
    values.OffsetAN = {0.0, 0.0, -0.03};
    values.OffsetRI = {0.0, 0.0, 0.03};
    values.WinkelAN = values.WinkelRI = {180.0, 0.0, 0.0};
    values.AnschlussAN = L"-0.5;0;0;0;0.5;-0.03;180;0;0;0;0;0";
    values.AnschlussRI = L"-0.5;0;0;0;-0.5;0.03;180;0;0;0;0;0";
}

void AddFloor(CDice& dice, std::size_t rooms, CBuilding& building)
{
    const std::size_t floor = building.floors.size();
    CFloor added;
    added.strName = L"Piano " + FormatInt(static_cast<long long>(floor) + 1);
    double east = 0.0;
    for (std::size_t number = 0; number < rooms; ++number) {
        added.rooms.push_back(std::make_shared<const CRoom>(MakeRoom(dice, floor, number, east)));
    }
    building.floors.push_back(std::move(added));
}

} // namespace

CBuilding MakeLargeBuilding(std::size_t rooms)
{
    CBuilding building;
    building.strName = L"Edificio di " + FormatInt(static_cast<long long>(rooms)) + L" locali";
    building.system = kSystem;
    building.abstaende = kClearance;
    building.ventile = SampleValves();
    CDice dice;
    for (std::size_t done = 0; done < rooms; done += kRoomsOfFloor) {
        AddFloor(dice, std::min(kRoomsOfFloor, rooms - done), building);
    }
    return building;
}

void PlaceSampleRadiators(CBuilding& building)
{
    for (CFloor& floor : building.floors) {
        for (auto& room : floor.rooms) {
            if (room->heizkoerper.empty() && room->GetLeistung() > 0.0) {
                CRoom furnished = *room;
                furnished.heizkoerper = {MakeRadiator(furnished)};
                Connect(furnished.heizkoerper.front().anschluss);
                room = std::make_shared<const CRoom>(std::move(furnished));
            }
        }
    }
}

} // namespace workbench
