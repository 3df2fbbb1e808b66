#include "workbench/plan/room_selection.h"

#include "frame/entry_points.h"
#include "host/host_catalog.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/module_call.h"
#include "workbench/plan/placement.h"
#include "workbench/plan/wish_handover.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace workbench {

namespace {

/// Larger than any radiator, in mm.
constexpr double kNoLimit = 1e6;

constexpr CSizeLimits kAnySize{kNoLimit, kNoLimit, 0.0, kNoLimit};

/// A hand-over whose sizes are those of the product in truth.
HK_DATEN_VDI3805_UEBERGABE FillFromCatalogue(const CRadiatorWish& wish)
{
    HK_DATEN_VDI3805_UEBERGABE handover = FillHandover(wish);
    RequireReadCatalogue(wish.produkt.strHersteller);
    return handover;
}

std::optional<CRadiatorChoice> Search(HK_DATEN_VDI3805_UEBERGABE handover)
{
    CString layer;
    int layerColor = 0;
    const int row = CallModule(L"Scelta di " + handover.Produkt, [&] {
        return HeizkoerperauswahlVDI3805(nullptr, &handover, layer, layerColor, false, false);
    });
    if (row < 0) {
        RequireReadCatalogue(handover.Hersteller);
        return std::nullopt;
    }
    return ReadHandover(handover);
}

/// The row nearest to the need; where that is too weak, the one that the module finds when rows
/// below the bound must not hold their place, provided that it is strong enough.
std::optional<CRadiatorChoice> SearchWithin(const CRadiatorWish& wish)
{
    HK_DATEN_VDI3805_UEBERGABE handover = FillFromCatalogue(wish);
    std::optional<CRadiatorChoice> nearest = Search(handover);
    if (!nearest || nearest->daten.Leistung >= WeakestOutput(wish.leistung)) {
        return nearest;
    }
    handover.LeistungMin = WeakestOutput(wish.leistung);
    std::optional<CRadiatorChoice> stronger = Search(handover);
    return stronger && stronger->daten.Leistung >= WeakestOutput(wish.leistung) ? stronger
                                                                                : nearest;
}

HK_DATEN_VDI3805_UEBERGABE FillWithLimits(CRadiatorWish wish, const CSizeLimits& limits)
{
    wish.grenzen = limits;
    return FillFromCatalogue(wish);
}

/// The nearest radiator beyond the wished limits: where one limit given up is enough, only that
/// one, and the height no further than to the lowest radiator that there is.
std::optional<CRadiatorChoice> SearchBeyond(const CRadiatorWish& wish)
{
    CSizeLimits longer = wish.grenzen;
    longer.laengeMax = kNoLimit;
    CSizeLimits higher = wish.grenzen;
    higher.hoeheMax = std::max(higher.hoeheMax, FillWithLimits(wish, kAnySize).HoeheMin);
    CSizeLimits deeper = wish.grenzen;
    deeper.tiefeMin = 0.0;
    deeper.tiefeMax = kNoLimit;
    for (const CSizeLimits& limits : {longer, higher, deeper, kAnySize}) {
        if (std::optional<CRadiatorChoice> found = Search(FillWithLimits(wish, limits))) {
            return found;
        }
    }
    return std::nullopt;
}

std::vector<CString> FindLacks(const CRadiatorWish& wish, const HK_DATEN_VDI3805& daten)
{
    std::vector<CString> lacks = FindExcess(wish.grenzen, daten);
    if (daten.Leistung < WeakestOutput(wish.leistung)) {
        lacks.push_back(DescribeLack(wish.leistung - daten.Leistung, wish.leistung));
    }
    return lacks;
}

CString DescribeNearest(const CRadiatorWish& wish, const CRadiatorChoice& nearest)
{
    CString text = L"il più vicino è " + DescribeRow(nearest.strTyp, nearest.daten);
    CString separator = L": ";
    for (const CString& lack : FindLacks(wish, nearest.daten)) {
        text += separator + lack;
        separator = L"; ";
    }
    return text;
}

/// Why not even an unlimited size of a catalogue that can be read has a row: the module answers all
/// of these with silence.
CRoomOutcome ExplainEmptySearch(const CRadiatorProduct& produkt)
{
    const auto unknown = [](const CString& note) {
        return CRoomOutcome{RoomStatus::unknownProduct, {}, note};
    };
    if (produkt == CRadiatorProduct()) {
        return unknown(L"il locale non ha ancora un prodotto");
    }
    HK_VDI3805_HERSTELLER* maker = FindHersteller(produkt.strHersteller);
    if (!maker) {
        return unknown(L"i cataloghi non hanno il produttore \"" + produkt.strHersteller + L"\"");
    }
    HK_VDI3805_ART* kind = FindArt(maker, produkt.strArt);
    if (!kind) {
        return unknown(L"il catalogo di " + produkt.strHersteller + L" non ha la categoria \"" +
                       produkt.strArt + L"\"");
    }
    if (!FindProdukt(kind, produkt.strProdukt)) {
        return unknown(L"la categoria \"" + produkt.strArt + L"\" non ha il prodotto \"" +
                       produkt.strProdukt + L"\"");
    }
    return unknown(L"il prodotto \"" + produkt.strProdukt + L"\" non ha misure utilizzabili");
}

CRoomOutcome SearchRadiator(const CRadiatorWish& wish)
{
    std::optional<CRadiatorChoice> found = SearchWithin(wish);
    if (found && found->daten.Leistung >= WeakestOutput(wish.leistung)) {
        return {RoomStatus::chosen, found, {}};
    }
    if (!found) {
        found = SearchBeyond(wish);
    }
    if (!found) {
        return ExplainEmptySearch(wish.produkt);
    }
    return {RoomStatus::unfitting, found, DescribeNearest(wish, *found)};
}

/// Of radiators built to measure the catalogue has those from this share of the wished output on.
constexpr double kBuiltFrom = 0.4;

/// Nobody builds a weaker radiator, in watts.
constexpr double kLeastOutput = 1.0;

/// What gives less than is wished is nearest to it where it gives most.
std::optional<CRadiatorChoice> SearchLargest(CRadiatorWish wish)
{
    std::optional<CRadiatorChoice> largest;
    for (; wish.leistung >= kLeastOutput; wish.leistung *= kBuiltFrom) {
        std::optional<CRadiatorChoice> found = Search(FillFromCatalogue(wish));
        if (found && (!largest || found->daten.Leistung > largest->daten.Leistung)) {
            largest = std::move(found);
        }
        if (largest && largest->daten.Leistung >= kBuiltFrom * wish.leistung) {
            return largest;
        }
    }
    return largest;
}

} // namespace

std::optional<CRadiatorChoice> SelectLargest(CRadiatorWish wish)
{
    try {
        return SearchLargest(std::move(wish));
    } catch (const CModuleFault&) {
        return std::nullopt;
    }
}

CRoomOutcome SelectRadiator(const CRadiatorWish& wish)
{
    if (wish.leistung <= 0.0) {
        return {RoomStatus::covered, {}, L"nessun corpo scaldante necessario"};
    }
    try {
        return SearchRadiator(wish);
    } catch (const CModuleFault& fault) {
        return {RoomStatus::badCatalogue, {}, fault.GetMessage()};
    }
}

} // namespace workbench
