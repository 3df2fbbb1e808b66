#include "host/host_catalog.h"

#include "host/host_prefs.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "reference_host/catalog/library/catalogue_library.h"
#include "reference_host/catalog/order_number.h"
#include "reference_host/catalog/reader/row_builder.h"

#include <algorithm>

using namespace reference_host;

namespace {
CCatalogueLibrary& Library()
{
    static CCatalogueLibrary library;
    return library;
}
} // namespace

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    return Library().List(GetHKDir(false));
}

HK_VDI3805_HERSTELLER* FindHersteller(const CString& name)
{
    return Library().Find(name);
}

int ReadVdiFile(const CString& hersteller, HK_VDI3805_ART** art, double leistungEN442)
{
    return Library().Read(GetHKDir(false), hersteller, art, leistungEN442);
}

namespace reference_host {

std::optional<CFileFault> GetCatalogueError(const CString& hersteller)
{
    return Library().Error(hersteller);
}

std::vector<CFileFault> GetListingErrors()
{
    return Library().ListingErrors();
}

CString FindOrderNumber(const CString& hersteller, const CString& art, const CString& produkt,
                        const CString& typ, const HK_DATEN_VDI3805& daten)
{
    const CCatalogue* const katalog = Library().Model(GetHKDir(false), hersteller);
    if (!katalog) {
        return {};
    }
    const auto kind = std::ranges::find(katalog->arten, art, &CCatalogueKind::strName);
    if (kind == katalog->arten.end()) {
        return {};
    }
    const auto model = std::ranges::find(kind->produkte, produkt, &CCatalogueProduct::strName);
    return model == kind->produkte.end() ? CString() : FindOrderNumber(*model, typ, daten);
}

} // namespace reference_host
