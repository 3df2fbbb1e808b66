#include "reference_host/catalog/library/catalogue_tree.h"

#include <cstddef>
#include <set>
#include <utility>

namespace reference_host {

namespace {
void AssignSizes(OCArray<double>& target, const std::set<double>& sizes)
{
    target.RemoveAll();
    for (const double size : sizes) {
        target.Add(size);
    }
}

void Chain(std::vector<HK_VDI3805_TYP>& rows)
{
    for (std::size_t i = 1; i < rows.size(); ++i) {
        rows[i - 1].pNext = &rows[i];
    }
}
} // namespace

void CCatalogueTree::ListHersteller(const CString& folder, const std::vector<CString>& names)
{
    if (IsListed(folder, names)) {
        return;
    }
    std::set<const CManufacturer*> formerlyListed;
    for (auto& [key, hersteller] : m_hersteller) {
        if (hersteller.bListed) {
            formerlyListed.insert(&hersteller);
        }
        hersteller.bListed = false;
        hersteller.node.pNext = nullptr;
    }

    m_strFolder = folder;
    m_listed.clear();
    HK_VDI3805_HERSTELLER** link = &m_pFirst;
    for (const CString& name : names) {
        m_listed.push_back(Find(folder, name));
        CManufacturer& hersteller = m_listed.back()->second;
        if (!formerlyListed.contains(&hersteller)) {
            hersteller.node.pArt = nullptr;
        }
        hersteller.bListed = true;
        *link = &hersteller.node;
        link = &hersteller.node.pNext;
    }
    *link = nullptr;
}

HK_VDI3805_ART* CCatalogueTree::Hang(const CString& folder, const CString& hersteller,
                                     std::vector<CBuiltKind> arten, int& rowCount)
{
    CManufacturer& owner = Find(folder, hersteller)->second;
    Unhang(owner);

    rowCount = 0;
    HK_VDI3805_ART* first = nullptr;
    HK_VDI3805_ART** link = &first;
    for (CBuiltKind& built : arten) {
        CKind& art = owner.arten[built.strName];
        art.node.Name = built.strName;
        rowCount += Fill(art, built);
        *link = &art.node;
        link = &art.node.pNext;
    }
    return first;
}

bool CCatalogueTree::IsListed(const CString& folder, const std::vector<CString>& names) const
{
    if (folder != m_strFolder || names.size() != m_listed.size()) {
        return false;
    }
    const HK_VDI3805_HERSTELLER* node = m_pFirst;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto& [key, hersteller] = *m_listed[i];
        if (node != &hersteller.node || key.second != names[i] || node->Name != names[i]) {
            return false;
        }
        node = node->pNext;
    }
    return node == nullptr;
}

CCatalogueTree::Manufacturers::iterator CCatalogueTree::Find(const CString& folder,
                                                             const CString& hersteller)
{
    const auto found = m_hersteller.try_emplace({folder, hersteller}).first;
    found->second.node.Name = hersteller;
    return found;
}

void CCatalogueTree::Unhang(CManufacturer& hersteller)
{
    for (auto& [artName, art] : hersteller.arten) {
        art.node.pNext = nullptr;
        art.node.pProdukt = nullptr;
        for (auto& [produktName, produkt] : art.produkte) {
            produkt.node.pNext = nullptr;
            produkt.node.pTyp = nullptr;
            produkt.node.Hoehen.RemoveAll();
            produkt.node.Tiefen.RemoveAll();
            produkt.rows.clear();
        }
    }
}

int CCatalogueTree::Fill(CKind& art, CBuiltKind& built)
{
    int rowCount = 0;
    HK_VDI3805_PRODUKT** link = &art.node.pProdukt;
    for (CBuiltProduct& builtProduct : built.produkte) {
        CProduct& produkt = art.produkte[builtProduct.strName];
        produkt.node.Name = builtProduct.strName;
        Fill(produkt, builtProduct);
        rowCount += static_cast<int>(produkt.rows.size());
        *link = &produkt.node;
        link = &produkt.node.pNext;
    }
    return rowCount;
}

void CCatalogueTree::Fill(CProduct& produkt, CBuiltProduct& built)
{
    AssignSizes(produkt.node.Hoehen, built.hoehen);
    AssignSizes(produkt.node.Tiefen, built.tiefen);

    produkt.rows = std::move(built.rows);
    Chain(produkt.rows);
    produkt.node.pTyp = produkt.rows.empty() ? nullptr : produkt.rows.data();
}

} // namespace reference_host
