#pragma once

#include "frame/handover.h"
#include "reference_host/catalog/library/built_catalogue.h"

#include <map>
#include <utility>
#include <vector>

namespace reference_host {

/// Owner of all nodes of the catalogue tree. Rows live until their product is filled again. The
/// node of a manufacturer, kind or product, once made, lives as long as the tree: one that is not
/// needed is taken off its list and comes back when its name does, so that pointers held by others
/// never dangle. The lists may meanwhile have been bent by a host; the tree follows none of them
/// and frees nothing through them.
class CCatalogueTree
{
public:
    CCatalogueTree() = default;
    CCatalogueTree(const CCatalogueTree&) = delete;
    CCatalogueTree& operator=(const CCatalogueTree&) = delete;

    /// Makes the manufacturers' list that of these names in this folder, in the order given, each
    /// name once. Those that were in the list keep what hangs below them, others come in as unread.
    /// A list that is that already is only looked through.
    void ListHersteller(const CString& folder, const std::vector<CString>& names);

    /// Head of the manufacturers' list, null if it is empty.
    HK_VDI3805_HERSTELLER* GetFirst() const { return m_pFirst; }

    /// Puts the manufacturer's kinds, products and rows in the place of the former ones and returns
    /// the first kind. `rowCount` receives the count of rows. Kinds and products of the same name
    /// are the same nodes as before; the former rows are freed. Names are unique on their level.
    HK_VDI3805_ART* Hang(const CString& folder, const CString& hersteller,
                         std::vector<CBuiltKind> arten, int& rowCount);

private:
    // The nodes of a std::map stay where they are.
    struct CProduct
    {
        HK_VDI3805_PRODUKT node;
        std::vector<HK_VDI3805_TYP> rows;
    };
    struct CKind
    {
        HK_VDI3805_ART node;
        std::map<CString, CProduct> produkte;
    };
    struct CManufacturer
    {
        HK_VDI3805_HERSTELLER node;
        std::map<CString, CKind> arten;
        bool bListed = false;
    };

    using Manufacturers = std::map<std::pair<CString, CString>, CManufacturer>;

    /// True if the list is that of these names, and no host has bent it.
    bool IsListed(const CString& folder, const std::vector<CString>& names) const;
    Manufacturers::iterator Find(const CString& folder, const CString& hersteller);
    static void Unhang(CManufacturer& hersteller);
    static int Fill(CKind& art, CBuiltKind& built);
    static void Fill(CProduct& produkt, CBuiltProduct& built);

    Manufacturers m_hersteller;
    HK_VDI3805_HERSTELLER* m_pFirst = nullptr;
    /// The folder of the list, and the owners of its nodes in their order.
    CString m_strFolder;
    std::vector<Manufacturers::iterator> m_listed;
};

} // namespace reference_host
