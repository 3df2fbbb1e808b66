#pragma once

#include "dialogs/resizing_dialog.h"
#include "selection/dialog/katalog_baum.h"

class CHKVdi3805;

/// Picks a product from the tree of radiator catalogues. The product that is selected stands in the
/// hand-over of the catalogue object at once, so that it stays there after Cancel as well.
class CHKAuswahlVdi3805TreeDlg : public CResizingDialog
{
public:
    /// `vdi` must outlive the object and have made a filter pass. The dialog opens on the product
    /// of its hand-over.
    explicit CHKAuswahlVdi3805TreeDlg(CHKVdi3805* vdi);
    ~CHKAuswahlVdi3805TreeDlg() override;

protected:
    const CMessageMap& GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    void OnOK() override;

private:
    void OnBaumItemExpanding(CNotify& notify);
    void OnBaumSelChanged(CNotify& notify);
    void SetzeAnker();

    CHKVdi3805* m_pVdi;
    CKatalogBaum m_baum;
};
