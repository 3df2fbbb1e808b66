#include "workbench/plan/room_selection.h"

#include "frame/entry_points.h"
#include "host/host_catalog.h"
#include "platform/format.h"
#include "workbench/plan/catalogue_check.h"
#include "workbench/plan/coverage.h"

#include <algorithm>
#include <vector>

namespace workbench {

namespace {

/// The module takes rows up to this much higher than the height asked for, in mm. A sill gives no
/// such grace, so the limit is handed over lowered by it.
constexpr double kHeightGrace = 10.0;

/// Larger than any radiator, in mm.
constexpr double kNoLimit = 1e6;

constexpr CSizeLimits kAnySize{kNoLimit, kNoLimit, 0.0, kNoLimit};

HK_DATEN_VDI3805_UEBERGABE MakeCriteria(const CRoom& room, const CHeatingSystem& system,
                                        const CSizeLimits& limits)
{
    HK_DATEN_VDI3805_UEBERGABE criteria;
    criteria.Hersteller = room.strHersteller;
    criteria.Art = room.strArt;
    criteria.Produkt = room.strProdukt;
    criteria.Leistung = room.GetLeistung();
    criteria.LeistungMin = -1.0;
    criteria.LeistungMax = -1.0;
    criteria.Toleranz = kCoverTolerance;
    criteria.HoeheMax = limits.hoeheMax - kHeightGrace;
    criteria.LaengeMax = limits.laengeMax;
    criteria.TiefeMin = limits.tiefeMin;
    criteria.TiefeMax = limits.tiefeMax;
    criteria.Vorlauf = system.vorlauf;
    criteria.Ruecklauf = system.ruecklauf;
    criteria.Raumtemperatur = room.raumtemperatur;
    criteria.Raumname = room.strName;
    criteria.RaumBedarf = room.bedarf;
    criteria.RaumGedeckt = room.gedeckt;
    // Radiators built to measure are made around the need, which is another for each room.
    criteria.NeuLesen = 1;
    return criteria;
}

std::optional<CRadiator> Search(HK_DATEN_VDI3805_UEBERGABE criteria)
{
    CString layer;
    int layerColor = 0;
    if (HeizkoerperauswahlVDI3805(nullptr, &criteria, layer, layerColor, false, false) < 0) {
        return std::nullopt;
    }
    return CRadiator{criteria.TypName, criteria.Daten};
}

/// The row nearest to the need; where that is too weak, the one that the module finds when rows
/// below the bound must not hold their place, provided that it is strong enough.
std::optional<CRadiator> SearchWithin(const CRoom& room, const CHeatingSystem& system)
{
    HK_DATEN_VDI3805_UEBERGABE criteria = MakeCriteria(room, system, room.grenzen);
    std::optional<CRadiator> nearest = Search(criteria);
    if (!nearest || nearest->daten.Leistung >= WeakestOutputOf(room)) {
        return nearest;
    }
    criteria.LeistungMin = WeakestOutputOf(room);
    std::optional<CRadiator> stronger = Search(criteria);
    return stronger && stronger->daten.Leistung >= WeakestOutputOf(room) ? stronger : nearest;
}

/// The lowest height of the product; the room's limit if the product has no heights.
double LowestHeight(const CRoom& room, const CHeatingSystem& system)
{
    HK_DATEN_VDI3805_UEBERGABE criteria = MakeCriteria(room, system, kAnySize);
    OCArray<double> heights;
    OCArray<double> depths;
    Read_HK_Masse(criteria, heights, depths);
    return heights.IsEmpty() ? room.grenzen.hoeheMax : heights[0];
}

/// The nearest radiator beyond the room's limits: where one limit given up is enough, only that
/// one, and the height no further than to the lowest radiator that there is.
std::optional<CRadiator> SearchBeyond(const CRoom& room, const CHeatingSystem& system)
{
    CSizeLimits longer = room.grenzen;
    longer.laengeMax = kNoLimit;
    CSizeLimits higher = room.grenzen;
    higher.hoeheMax = std::max(higher.hoeheMax, LowestHeight(room, system));
    CSizeLimits deeper = room.grenzen;
    deeper.tiefeMin = 0.0;
    deeper.tiefeMax = kNoLimit;
    for (const CSizeLimits& limits : {longer, higher, deeper, kAnySize}) {
        if (std::optional<CRadiator> found = Search(MakeCriteria(room, system, limits))) {
            return found;
        }
    }
    return std::nullopt;
}

CString Millimetres(double value)
{
    return FormatExact(value) + L" mm";
}

void AddExcess(std::vector<CString>& lacks, const CString& name, double value, double limit)
{
    if (value > limit) {
        lacks.push_back(name + L" " + Millimetres(value) + L", consentiti " + Millimetres(limit));
    }
}

std::vector<CString> FindLacks(const CRoom& room, const HK_DATEN_VDI3805& daten)
{
    std::vector<CString> lacks;
    AddExcess(lacks, L"altezza", daten.Hoehe, room.grenzen.hoeheMax);
    AddExcess(lacks, L"lunghezza", daten.Laenge, room.grenzen.laengeMax);
    AddExcess(lacks, L"profondità", daten.Tiefe, room.grenzen.tiefeMax);
    if (daten.Tiefe < room.grenzen.tiefeMin) {
        lacks.push_back(L"profondità " + Millimetres(daten.Tiefe) + L", richiesti almeno " +
                        Millimetres(room.grenzen.tiefeMin));
    }
    if (daten.Leistung < WeakestOutputOf(room)) {
        const double missing = room.GetLeistung() - daten.Leistung;
        lacks.push_back(L"mancano " + FormatFixed(missing, 0) + L" W (" +
                        FormatFixed(100.0 * missing / room.GetLeistung(), 1) + L" %)");
    }
    return lacks;
}

CString DescribeNearest(const CRoom& room, const CRadiator& nearest)
{
    const HK_DATEN_VDI3805& daten = nearest.daten;
    CString text = L"il più vicino è " + nearest.strTyp + L", " + FormatExact(daten.Hoehe) +
                   L" x " + FormatExact(daten.Tiefe) + L" x " + Millimetres(daten.Laenge) + L", " +
                   FormatFixed(daten.Leistung, 0) + L" W";
    CString separator = L": ";
    for (const CString& lack : FindLacks(room, daten)) {
        text += separator + lack;
        separator = L"; ";
    }
    return text;
}

/// Why not even an unlimited size found a row: the module answers all of these with silence.
CRoomOutcome ExplainEmptySearch(const CRoom& room)
{
    const auto unknown = [](const CString& note) {
        return CRoomOutcome{RoomStatus::unknownProduct, {}, note};
    };
    HK_VDI3805_HERSTELLER* maker = FindHersteller(room.strHersteller);
    if (!maker) {
        return unknown(L"i cataloghi non hanno il produttore \"" + room.strHersteller + L"\"");
    }
    if (const std::optional<reference_host::CCatalogueError> error =
            reference_host::GetCatalogueError(room.strHersteller)) {
        return {RoomStatus::badCatalogue, {}, FormatCatalogueError(*error)};
    }
    HK_VDI3805_ART* kind = FindArt(maker, room.strArt);
    if (!kind) {
        return unknown(L"il catalogo di " + room.strHersteller + L" non ha la categoria \"" +
                       room.strArt + L"\"");
    }
    if (!FindProdukt(kind, room.strProdukt)) {
        return unknown(L"la categoria \"" + room.strArt + L"\" non ha il prodotto \"" +
                       room.strProdukt + L"\"");
    }
    return unknown(L"il prodotto \"" + room.strProdukt + L"\" non ha misure utilizzabili");
}

} // namespace

CRoomOutcome SelectRadiator(const CRoom& room, const CHeatingSystem& system)
{
    if (room.GetLeistung() <= 0.0) {
        return {RoomStatus::covered, {}, L"nessun corpo scaldante necessario"};
    }
    std::optional<CRadiator> found = SearchWithin(room, system);
    if (found && found->daten.Leistung >= WeakestOutputOf(room)) {
        return {RoomStatus::chosen, found, {}};
    }
    if (!found) {
        found = SearchBeyond(room, system);
    }
    if (!found) {
        return ExplainEmptySearch(room);
    }
    return {RoomStatus::unfitting, found, DescribeNearest(room, *found)};
}

} // namespace workbench
