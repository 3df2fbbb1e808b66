#include "workbench/plan/stronger_types.h"

#include "host/host_catalog.h"
#include "workbench/plan/room_selection.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace workbench {

namespace {

/// Enough to tell types apart: what could give more than this multiple of the wish is as good as
/// any other that could.
constexpr double kPlenty = 4.0;

/// The module finds nothing for an output that is further from all rows than 100 kW.
constexpr double kMostAsked = 90000.0;

/// What a product could give at the places of the wishes, in watts, and its depth there, in mm.
struct CCapacity
{
    double tiefe = 0.0;
    double leistung = 0.0;
};

CCapacity CapacityOf(const CString& produkt, const std::vector<CRadiatorWish>& wishes)
{
    CCapacity capacity;
    for (CRadiatorWish wish : wishes) {
        wish.produkt.strProdukt = produkt;
        wish.leistung = std::min(kPlenty * wish.bedarf, kMostAsked);
        if (const auto largest = SelectLargest(std::move(wish))) {
            capacity.tiefe = std::max(capacity.tiefe, largest->daten.Tiefe);
            capacity.leistung += largest->daten.Leistung;
        }
    }
    return capacity;
}

/// Searches may read the catalogue anew, so that the names are taken out of it beforehand.
std::vector<CString> ProductsOfKind(const CRadiatorProduct& produkt)
{
    std::vector<CString> names;
    HK_VDI3805_HERSTELLER* const maker = FindHersteller(produkt.strHersteller);
    if (const HK_VDI3805_ART* const kind = maker ? FindArt(maker, produkt.strArt) : nullptr) {
        for (const auto* other = kind->pProdukt; other != nullptr; other = other->pNext) {
            names.push_back(other->Name);
        }
    }
    return names;
}

} // namespace

std::vector<CRadiatorProduct> FindStrongerTypes(const std::vector<CRadiatorWish>& wishes)
{
    if (wishes.empty()) {
        return {};
    }
    const CRadiatorProduct& own = wishes.front().produkt;
    const double present = CapacityOf(own.strProdukt, wishes).leistung;
    // By depth and output; equal ones stay in the order of the catalogue.
    std::multimap<std::tuple<double, double>, CRadiatorProduct> stronger;
    for (const CString& name : ProductsOfKind(own)) {
        if (const CCapacity capacity = CapacityOf(name, wishes); capacity.leistung > present) {
            stronger.emplace(std::tuple(capacity.tiefe, capacity.leistung),
                             CRadiatorProduct{own.strHersteller, own.strArt, name});
        }
    }
    std::vector<CRadiatorProduct> products;
    for (auto& [capacity, produkt] : stronger) {
        products.push_back(std::move(produkt));
    }
    return products;
}

} // namespace workbench
