#include "host/host_catalog.h"

#include "host/host_prefs.h"
#include "platform/path.h"
#include "reference_host/catalog/catalogue_cache.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "reference_host/catalog/catalogue_folder.h"
#include "reference_host/catalog/catalogue_tree.h"

#include <filesystem>
#include <map>
#include <optional>
#include <utility>
#include <variant>

using namespace reference_host;

namespace {
struct CLibrary
{
    CCatalogueTree tree;
    CCatalogueCache cache;
    std::map<CString, CFileFault> errors;
};

CLibrary& Library()
{
    static CLibrary library;
    return library;
}

template <class NODE>
NODE* FindByName(NODE* first, const CString& name)
{
    NODE* node = first;
    while (node && node->Name != name) {
        node = node->pNext;
    }
    return node;
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
    CCatalogueTree& tree = Library().tree;
    const CString folder = GetHKDir(false);
    tree.ListHersteller(folder, ListManufacturers(folder));
    return tree.GetFirst();
}

HK_VDI3805_HERSTELLER* FindHersteller(const CString& name)
{
    return FindByName(Library().tree.GetFirst(), name);
}

HK_VDI3805_ART* FindArt(HK_VDI3805_HERSTELLER* hersteller, const CString& name)
{
    return hersteller ? FindByName(hersteller->pArt, name) : nullptr;
}

HK_VDI3805_PRODUKT* FindProdukt(HK_VDI3805_ART* art, const CString& name)
{
    return art ? FindByName(art->pProdukt, name) : nullptr;
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
    const auto& errors = Library().errors;
    const auto found = errors.find(hersteller);
    return found == errors.end() ? std::nullopt : std::optional(found->second);
}

} // namespace reference_host
