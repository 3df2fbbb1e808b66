#pragma once

#include "dialogs/resizing_dialog.h"
#include "frame/ventil_kv.h"
#include "uikit/combo_box.h"
#include "uikit/font.h"
#include "uikit/tree_ctrl.h"
#include "valve/ventil_auswahl.h"
#include "valve/ventil_katalog.h"

/// Lets the user choose a valve out of the manufacturers' files: first the manufacturer, then the
/// article in a tree, beside which the dialog shows the article's data. The dialog is at the same
/// time the catalogue of the manufacturer that it shows. An object that is never opened serves as
/// a reader of valve files and needs no application object.
///
/// The choice is the valve's identity with its nominal diameter; its kv table is fetched by its
/// key.
class CVentVdiDlg : public CResizingDialog, public CVentVdiKatalog
{
public:
    CVentVdiDlg();
    ~CVentVdiDlg() override;

    /// Valve to open on, by its key. Before DoModal().
    void SetzeVorgabe(const CString& ventilNr, const CString& hersteller);

    /// The valve chosen, after DoModal() gave kIdOk. Without a choice it is an empty record.
    /// Gruppe and Hauptgruppe hold the names the other way round than a fetched valve does.
    void HoleErgebnis(VDI3805_VENTIL_KV& ventil) const;

protected:
    const CMessageMap& GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnSysCommand(unsigned id) override;

private:
    void OnBaumSelChanged(CNotify& notify);
    void WechsleHersteller();

    void LadeIcons();
    void SetzeListenFont();
    void SetzeAnker();
    void FuelleHersteller();
    void WaehleHersteller(const CString& text);
    void ZeigeKopf();
    void FuelleBaum();
    HTREEITEM FuelleGruppen(const VENT_VDI3805_HAUPTGRUPPE& haupt, HTREEITEM oben);
    void WaehleArtikel(HTREEITEM item);
    void SuchePfad(HTREEITEM item);
    void SetzeStelle(const VentilStelle& stelle);
    void ZeigeVentil(const VENT_VDI3805_ARTIKEL& artikel);
    void FuelleKvListe(const VENT_VDI3805_ARTIKEL& artikel);
    void ZeigeTexte(const VENT_VDI3805_ARTIKEL& artikel);
    void ZeigeVentilArt();
    void SetzeText(int id, const CString& text);

    VDI3805_VENTIL_KV Ventil;
    VDI3805_VENTIL_KV Ergebnis;
    CString VorgabeVentil;
    CString VorgabeHersteller;
    VENT_VDI3805_HAUPTGRUPPE* SelHauptgruppe = nullptr;
    VENT_VDI3805_GRUPPE* SelGruppe = nullptr;
    VENT_VDI3805_ARTIKEL* SelArtikel = nullptr;
    CString TextAntrieb;
    CString TextBauform;
    CString TextWerkstoff;
    CString TextDN;
    CString TextDruck;
    CString TextKvs;
    int CheckEinstellbar = 0;
    int AnzeigeZeile = 0;
    int m_nTransparenz = 255;
    CFont ListenFont;

    CImageList m_icons;
    CComboBox m_hersteller;
    CComboBox m_kvListe;
    CTreeCtrl m_baum;
};
