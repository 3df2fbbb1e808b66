#pragma once

#include "connection/anschluss_zustand.h"
#include "connection/ventil_paar.h"
#include "dialogs/brushed_dialog.h"
#include "dialogs/combo_liste.h"
#include "platform/geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

class CDrawer;
struct TGA_LIST;

/// What the connection dialog opens on.
struct CVentVorgaben
{
    const ConnValues& anschluss;
    const VDI3805_VENTIL_KV& ventilAN;
    const VDI3805_VENTIL_KV& ventilRI;
    /// Radiators of a drawing that show their connection points in it, and the drawing; either may
    /// be null, and must outlive the dialog.
    TGA_LIST* liste;
    CDrawer* drawer;
    bool superUser;
    /// The user may switch the groups of connection type and valves off.
    bool gruppenWaehlbar;
    bool fanCoil;
};

/// Lets the user set up how a radiator is connected: a connection type out of the short list or
/// points placed by hand, the two valves, distances and valve graphics. Radiators of a drawing show
/// their connection points in it meanwhile.
///
/// The dialog opens collapsed. Only a superuser can expand it, and thereby reach the fields of the
/// points and the buttons that store a connection type.
class CVentDlg : public CBrushedDialog, private CAnschlussAnsicht
{
public:
    explicit CVentDlg(const CVentVorgaben& vorgaben);
    ~CVentDlg() override;

    /// What the user chose, after DoModal() gave kIdOk: connection, valves, and whether the groups
    /// of valves and connection type and the fan coil were ticked. The graphics are those chosen
    /// here: a user who leaves their lists alone takes the graphics away.
    void HoleErgebnis(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilAN,
                      VDI3805_VENTIL_KV& ventilRI, bool& ventile, bool& typ, bool& fanCoil) const;

protected:
    const CMessageMap& GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void OnPaint() override;

private:
    void ZeichneAnschluss() override;
    void ZeichneVorschau() override;
    void ZeigeFelder() override { UpdateData(false); }
    void LeseFelder() override { UpdateData(true); }
    void ZeigePunkt(Punkt punkt) override;
    CAuswahlListe& Typen() override { return m_typen; }
    void WaehleAnschlussTyp() override;

    void LadeKurzliste();
    void ZeigeEinheiten();
    void ZeigeEingang();
    void LadeIcons();
    void FuelleGrafikListen();
    void UmschaltenErweitert();
    void ZeigeVentile();
    void ZeigeVentil(Punkt punkt);
    void UebernehmeVentil(Punkt von);
    void LesePunkt();
    void SchreibePunkt();
    void LoescheVorschau();
    void Aktiviere(std::initializer_list<int> ids, bool aktiv);
    void SetzeText(int id, const CString& text);

    void OnTypAktiv();
    void OnVentileAktiv();
    void OnKreuz();
    void OnSeitAbstand();
    void OnVonWand();
    void OnInverti();
    void OnPreset();
    void OnSchritt(CNotify& notify);
    void OnRichtung(CNotify& notify);
    void OnVentil(CNotify& notify);
    void OnUebernehme(CNotify& notify);
    void OnLeereVentil(CNotify& notify);
    void OnGrafik();
    void OnLeereGrafik();
    void OnSalva();
    void OnMemorizza();

    static constexpr std::size_t kRichtungen = 4;

    CAnschlussZustand m_zustand;
    /// The radiator's front view in the sketch, in pixels of its frame.
    CRect m_BildRect;
    CVentilPaar m_ventile;
    TGA_LIST* m_pListe;
    CDrawer* m_pDrawer;
    bool m_bErweitert = true;
    /// The pairs of angles in degrees that the arrows beside the angles go through, and the place
    /// there, which starts at the first pair whatever the angles are.
    std::array<std::array<std::int32_t, 2>, kRichtungen> m_Richtungen = {
        {{0, 0}, {180, 0}, {0, 90}, {0, 270}}};
    std::size_t m_RichtungIndex = 0;
    bool m_bSuperUser;
    bool m_bGruppenWaehlbar;
    CString m_GrafikAN;
    CString m_GrafikRI;

    bool m_bTypAktiv = true;
    bool m_bVentileAktiv = true;
    bool m_bFanCoil;
    int m_Preset = -1;

    CComboListe m_typen;
    CComboListe m_grafikenAN;
    CComboListe m_grafikenRI;
};
