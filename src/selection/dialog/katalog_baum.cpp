#include "selection/dialog/katalog_baum.h"

#include "dialogs/list_tree.h"
#include "host/host_catalog.h"
#include "radiator/hk_vdi3805.h"

namespace {

constexpr int kBildKante = 16;
constexpr std::intptr_t kPlatzhalter = -1;

/// Places in the image list.
enum Bild
{
    bildOrdner,
    bildProdukt
};

CImageList LadeBilder()
{
    const CImageLoader lader;
    CImageList bilder;
    for (const int nummer : {iconHersteller, iconProdukt}) {
        bilder.Add(lader.LoadLumoIcon(nummer, kBildKante, kBildKante));
    }
    return bilder;
}

} // namespace

CKatalogBaum::CKatalogBaum(CHKVdi3805& katalog) : m_pVdi(&katalog) {}

void CKatalogBaum::Fuelle()
{
    SetImageList(LadeBilder());
    CPtrArray liste;
    const int anzahl = m_pVdi->GetHerstellerListe(liste);
    for (int i = 0; i < anzahl; ++i) {
        const auto* hersteller = static_cast<const HK_VDI3805_HERSTELLER*>(liste[i]);
        HTREEITEM item = InsertItem(hersteller->Name, bildOrdner, bildOrdner, nullptr);
        SetItemData(item, reinterpret_cast<std::intptr_t>(hersteller));
        if (hersteller->pArt != nullptr) {
            FuelleHersteller(item);
        } else {
            SetItemData(InsertItem(L"Dummy", -1, -1, item), kPlatzhalter);
        }
    }
}

HK_VDI3805_HERSTELLER* CKatalogBaum::Hersteller(HTREEITEM item) const
{
    const bool istHersteller = item != nullptr && GetParentItem(item) == nullptr;
    return istHersteller ? reinterpret_cast<HK_VDI3805_HERSTELLER*>(GetItemData(item)) : nullptr;
}

bool CKatalogBaum::IstUngelesen(HTREEITEM item) const
{
    const HK_VDI3805_HERSTELLER* hersteller = Hersteller(item);
    return hersteller != nullptr && hersteller->pArt == nullptr;
}

void CKatalogBaum::LeseHersteller(HTREEITEM item)
{
    if (!IstUngelesen(item)) {
        return;
    }
    if (HTREEITEM erstes = GetChildItem(item)) {
        if (GetItemData(erstes) != kPlatzhalter) {
            // The kinds are those of an earlier reading; reading the file again has failed since.
            return;
        }
        DeleteItem(erstes);
    }
    HK_VDI3805_HERSTELLER& hersteller = *Hersteller(item);
    const HK_DATEN_VDI3805_UEBERGABE& daten = m_pVdi->GetDaten();
    ReadVdiFile(hersteller.Name, &hersteller.pArt, daten.Leistung / daten.Umrechnungsfaktor);
    FuelleHersteller(item);
}

void CKatalogBaum::FuelleHersteller(HTREEITEM item)
{
    for (const auto* art = Hersteller(item)->pArt; art != nullptr; art = art->pNext) {
        HTREEITEM artItem = InsertItem(art->Name, bildOrdner, bildOrdner, item);
        for (const auto* p = art->pProdukt; p != nullptr; p = p->pNext) {
            InsertItem(p->Name, bildProdukt, bildProdukt, artItem);
        }
    }
}

void CKatalogBaum::WaehleVorgabe()
{
    const HK_DATEN_VDI3805_UEBERGABE& daten = m_pVdi->GetDaten();
    HTREEITEM item = nullptr;
    for (const CString& name : {daten.Hersteller, daten.Art, daten.Produkt}) {
        item = FindTreeItem(name, *this, {}, item);
    }
    if (GetItemData(item) == kPlatzhalter) {
        // Opening the manufacturer replaces the placeholder, which cannot be selected then.
        Expand(GetParentItem(item));
        return;
    }
    SelectItem(item);
}

bool CKatalogBaum::UebernehmeProdukt(HTREEITEM item) const
{
    if (item == nullptr || ItemHasChildren(item)) {
        return false;
    }
    HK_DATEN_VDI3805_UEBERGABE& daten = m_pVdi->GetDaten();
    HTREEITEM art = GetParentItem(item);
    daten.Produkt = GetItemText(item);
    daten.Art = GetItemText(art);
    daten.Hersteller = GetItemText(GetParentItem(art));
    return true;
}
