#include "reference_host/catalog/library/catalogue_library.h"

#include "platform/path.h"
#include "reference_host/catalog/reader/row_builder.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <variant>

namespace reference_host {

namespace {

CBuiltProduct Build(const CCatalogueProduct& model, double requiredOutput)
{
    CBuiltProduct produkt;
    produkt.strName = model.strName;
    produkt.rows = BuildRows(model, requiredOutput);
    CCrossSections sizes = CrossSectionsOf(model);
    produkt.hoehen = std::move(sizes.hoehen);
    produkt.tiefen = std::move(sizes.tiefen);
    return produkt;
}

std::vector<CBuiltKind> Build(const CCatalogue& katalog, double requiredOutput)
{
    std::vector<CBuiltKind> arten;
    arten.reserve(katalog.arten.size());
    for (const CCatalogueKind& model : katalog.arten) {
        CBuiltKind& art = arten.emplace_back();
        art.strName = model.strName;
        art.produkte.reserve(model.produkte.size());
        for (const CCatalogueProduct& produkt : model.produkte) {
            art.produkte.push_back(Build(produkt, requiredOutput));
        }
    }
    return arten;
}

} // namespace

HK_VDI3805_HERSTELLER* CCatalogueLibrary::List(const CString& folder)
{
    const std::vector<CString>& names = m_makers.Get(folder).names;
    m_tree.ListHersteller(folder, names);
    // Of a maker who is gone nothing is known any more.
    std::erase_if(m_errors,
                  [&](const auto& error) { return !std::ranges::count(names, error.first); });
    return m_tree.GetFirst();
}

HK_VDI3805_HERSTELLER* CCatalogueLibrary::Find(const CString& hersteller) const
{
    HK_VDI3805_HERSTELLER* node = m_tree.GetFirst();
    while (node && node->Name != hersteller) {
        node = node->pNext;
    }
    return node;
}

int CCatalogueLibrary::Fail(const CString& hersteller, CFileFault error)
{
    m_errors.insert_or_assign(hersteller, std::move(error));
    return -1;
}

int CCatalogueLibrary::Read(const CString& folder, const CString& hersteller, HK_VDI3805_ART** art,
                            double leistungEN442)
{
    if (!art) {
        return -1;
    }
    *art = nullptr;

    m_errors.erase(hersteller);
    const std::optional<std::filesystem::path> file = FindCatalogueFile(folder, hersteller);
    if (!file) {
        return Fail(hersteller, {0, L"Nessun catalogo di \"" + hersteller + L"\".",
                                 TextFromPath(ResolvePath(folder))});
    }
    const CCatalogueCache::CResult& result = m_cache.Get(*file);
    if (const auto* fault = std::get_if<CFileFault>(&result)) {
        return Fail(hersteller, {fault->nLine, fault->strMessage, TextFromPath(*file)});
    }
    int rowCount = 0;
    *art = m_tree.Hang(folder, hersteller, Build(std::get<CCatalogue>(result), leistungEN442),
                       rowCount);
    return rowCount;
}

const CCatalogue* CCatalogueLibrary::Model(const CString& folder, const CString& hersteller)
{
    const std::optional<std::filesystem::path> file = FindCatalogueFile(folder, hersteller);
    return file ? std::get_if<CCatalogue>(&m_cache.Get(*file)) : nullptr;
}

std::optional<CFileFault> CCatalogueLibrary::Error(const CString& hersteller) const
{
    if (const auto found = m_errors.find(hersteller); found != m_errors.end()) {
        return found->second;
    }
    if (Find(hersteller)) {
        return std::nullopt;
    }
    const CManufacturerListing& listing = m_makers.Last();
    const auto found = listing.unreadable.find(hersteller);
    return found != listing.unreadable.end() ? found->second : listing.fault;
}

std::vector<CFileFault> CCatalogueLibrary::ListingErrors() const
{
    const CManufacturerListing& listing = m_makers.Last();
    std::vector<CFileFault> errors;
    if (listing.fault) {
        errors.push_back(*listing.fault);
    }
    for (const auto& [name, fault] : listing.unreadable) {
        errors.push_back(fault);
    }
    return errors;
}

} // namespace reference_host
