#pragma once

#include "uikit/tree_ctrl.h"

class CHKVdi3805;
struct HK_VDI3805_HERSTELLER;

/// The radiator catalogue as a tree of manufacturers, kinds and products, in the order of the
/// catalogue. A manufacturer's file is read when its item is first opened; until then one
/// placeholder stands below it. Items of manufacturers carry the pointer to their
/// HK_VDI3805_HERSTELLER, placeholders -1, all others 0.
///
/// The dialog binds it to its control, fills it while it opens, and passes on the events of the
/// control. The output and the position of a product come from the hand-over of the catalogue
/// object, and chosen products go there.
class CKatalogBaum : public CTreeCtrl
{
public:
    /// `katalog` must outlive the control and have made a filter pass.
    explicit CKatalogBaum(CHKVdi3805& katalog);

    /// Sets the pictures and adds all manufacturers; those that are read come with their kinds and
    /// products.
    void Fuelle();

    /// True for the item of a manufacturer whose file is not read, whether or not reading it has
    /// failed before.
    bool IstUngelesen(HTREEITEM item) const;

    /// To be called before an item opens: reads the file of a manufacturer that is unread, around
    /// the required output at standard conditions, and adds what it holds in place of the
    /// placeholder. A file that cannot be read leaves the item without children and is not
    /// reported. Other items are left alone, also one that has kept its kinds from a reading before
    /// the file failed.
    void LeseHersteller(HTREEITEM item);

    /// Selects what three searches find, for manufacturer, kind and product of the hand-over, each
    /// going on behind the item that the one before gave, or at the top if it gave none. Texts
    /// match in part and without regard to case. Nothing is selected if the last one finds nothing.
    /// Raises the selection event.
    void WaehleVorgabe();

    /// Puts an item without children and its two parents into the hand-over as product, kind and
    /// manufacturer, parents that it does not have as empty texts. False, with the hand-over left
    /// alone, for an item that has children and for none.
    bool UebernehmeProdukt(HTREEITEM item) const;

private:
    HK_VDI3805_HERSTELLER* Hersteller(HTREEITEM item) const;
    void FuelleHersteller(HTREEITEM item);

    CHKVdi3805* m_pVdi;
};
