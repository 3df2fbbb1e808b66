#include "host/host_catalog.h"

#include "host/host_prefs.h"
#include "platform/path.h"
#include "reference_host/catalog/catalogue_cache.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "reference_host/catalog/catalogue_folder.h"
#include "reference_host/catalog/catalogue_tree.h"
#include "reference_host/catalog/order_number.h"
#include "reference_host/catalog/reader/row_builder.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

using namespace reference_host;

namespace {
struct CLibrary
{
    CCatalogueTree tree;
    CCatalogueCache cache;
    CManufacturerCache makers;
    std::map<CString, CFileFault> errors;
};

CLibrary& Library()
{
    static CLibrary library;
    return library;
}

/// Keeps the error and gives the result of a reading that failed.
int Fail(const CString& hersteller, CFileFault error)
{
    Library().errors.insert_or_assign(hersteller, std::move(error));
    return -1;
}
} // namespace

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    CLibrary& library = Library();
    const CString folder = GetHKDir(false);
    const std::vector<CString>& names = library.makers.Get(folder).names;
    library.tree.ListHersteller(folder, names);
    // Of a maker who is gone nothing is known any more.
    std::erase_if(library.errors,
                  [&](const auto& error) { return !std::ranges::count(names, error.first); });
    return library.tree.GetFirst();
}

HK_VDI3805_HERSTELLER* FindHersteller(const CString& name)
{
    HK_VDI3805_HERSTELLER* hersteller = Library().tree.GetFirst();
    while (hersteller && hersteller->Name != name) {
        hersteller = hersteller->pNext;
    }
    return hersteller;
}

int ReadVdiFile(const CString& hersteller, HK_VDI3805_ART** art, double leistungEN442)
{
    if (!art) {
        return -1;
    }
    *art = nullptr;

    CLibrary& library = Library();
    library.errors.erase(hersteller);
    const CString folder = GetHKDir(false);
    const std::optional<std::filesystem::path> file = FindCatalogueFile(folder, hersteller);
    if (!file) {
        return Fail(hersteller, {0, L"Nessun catalogo di \"" + hersteller + L"\".",
                                 TextFromPath(ResolvePath(folder))});
    }
    const CCatalogueCache::CResult& result = library.cache.Get(*file);
    if (const auto* fault = std::get_if<CFileFault>(&result)) {
        return Fail(hersteller, {fault->nLine, fault->strMessage, TextFromPath(*file)});
    }
    int rowCount = 0;
    *art = library.tree.Hang(folder, hersteller, std::get<CCatalogue>(result), leistungEN442,
                             rowCount);
    return rowCount;
}

namespace reference_host {

std::optional<CFileFault> GetCatalogueError(const CString& hersteller)
{
    const CLibrary& library = Library();
    if (const auto found = library.errors.find(hersteller); found != library.errors.end()) {
        return found->second;
    }
    if (FindHersteller(hersteller)) {
        return std::nullopt;
    }
    const CManufacturerListing& listing = library.makers.Last();
    const auto found = listing.unreadable.find(hersteller);
    return found != listing.unreadable.end() ? found->second : listing.fault;
}

std::vector<CFileFault> GetListingErrors()
{
    const CManufacturerListing& listing = Library().makers.Last();
    std::vector<CFileFault> errors;
    if (listing.fault) {
        errors.push_back(*listing.fault);
    }
    for (const auto& [name, fault] : listing.unreadable) {
        errors.push_back(fault);
    }
    return errors;
}

CString FindOrderNumber(const CString& hersteller, const CString& art, const CString& produkt,
                        const CString& typ, const HK_DATEN_VDI3805& daten)
{
    const std::optional<std::filesystem::path> file =
        FindCatalogueFile(GetHKDir(false), hersteller);
    const auto* const katalog =
        file ? std::get_if<CCatalogue>(&Library().cache.Get(*file)) : nullptr;
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
