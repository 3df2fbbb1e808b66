#pragma once

#include "dialogs/bitmap_ctrl.h"
#include "dialogs/combo_liste.h"
#include "dialogs/platzierung.h"
#include "dialogs/resizing_dialog.h"
#include "host/drawer.h"
#include "selection/auswahl_kriterien.h"
#include "selection/dialog/hk_auswahl_grid.h"
#include "selection/dialog/katalog_baum.h"

#include <map>
#include <memory>

/// Picks one radiator: product in the tree, criteria and room on the right, the rows that fit in
/// the grid, and how the radiator is drawn. The choice goes to the hand-over of the catalogue
/// object as it is made, and so do changed criteria; Cancel takes nothing of that back.
///
/// The criteria themselves are CAuswahlKriterien, the rows CHKAuswahlVdi3805Grid; this class binds
/// them to the controls.
class CHKAuswahlVdi3805Dlg : public CResizingDialog, private CAuswahlAnsicht
{
public:
    /// `katalog` must outlive the object and have made a filter pass; `treffer` tells whether that
    /// has found a best row. With `warnen` the user is told once when no row fits, and the sizes
    /// are widened.
    CHKAuswahlVdi3805Dlg(CHKVdi3805& katalog, bool treffer, bool warnen);
    ~CHKAuswahlVdi3805Dlg() override;

    /// Layer and colour index that the caller wishes, before DoModal().
    void LayerSetzen(const CString& name, const int& farbe);
    /// What has become of them, whatever DoModal() returned.
    void LayerHolen(CString& name, int& farbe) const;
    /// The host's drawing, before DoModal(). May be null: then there is no choice of layers and
    /// blocks.
    void DrawerSetzen(CDrawer* drawer);

    /// True if a best row exists.
    bool HatTreffer() const { return m_kriterien.m_bTreffer; }

    CAuswahlKriterien& Kriterien() { return m_kriterien; }

    /// What OK and the close box do, for the grid.
    void Bestaetigen() { OnOK(); }
    void Schliessen() { OnCancel(); }

protected:
    const CMessageMap& GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnDestroy() override;
    void OnPaint() override;
    void OnTimer(int id) override;
    void OnSysCommand(unsigned id) override;

private:
    void UpdateData(bool lesen) override { CResizingDialog::UpdateData(lesen); }
    void EnableControl(int id, bool enable) override;
    CAuswahlListe& Liste(int id) override { return m_listen.at(id); }
    void ZeilenAufbauen(bool bFiltern) override;

    void OnBaumItemExpanding(CNotify& notify);
    void OnBaumSelChanged(CNotify& notify);
    void OnLayerGetippt();
    void OnLayerGewaehlt();
    void OnLayerFarbe();
    void OnLayerDialog();
    void OnBlockGewaehlt();
    void OnVentile();
    void OnAbstaende();

    void LadeIcons();
    void GitterAnlegen();
    void VorschauAnlegen();
    void FuelleZeichnungsListen();
    void SetzeAnker();
    void WendeLayerAktivAn();
    void LadeVorschau(const CString& block);
    void ZeigeOhneBlock();
    void ZeichneFarbe();

    CAuswahlKriterien m_kriterien;
    int m_nTransparenz = kDeckend;
    CDrawer* m_pDrawer = nullptr;
    CString m_strPfad;
    /// The block as its picture shows it; empty while none was chosen.
    CBitmap m_vorschau;
    CBitmapCtrl m_vorschauBild;
    CKatalogBaum m_baum;
    std::map<int, CComboListe> m_listen;
    std::unique_ptr<CHKAuswahlVdi3805Grid> m_pGrid;
};
