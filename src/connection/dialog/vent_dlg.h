#pragma once

#include "connection/anschluss_zustand.h"
#include "dialogs/brushed_dialog.h"
#include "frame/ventil_kv.h"
#include "uikit/combo_box.h"

#include <array>

class CDrawer;
struct TGA_LIST;

/// Lets the user set up how a radiator is connected: a connection type out of the short list or
/// points placed by hand, the two valves, distances and valve graphics. Radiators of a drawing show
/// their connection points in it meanwhile.
///
/// The dialog opens collapsed. Only a superuser can expand it, and thereby reach the fields of the
/// points and the buttons that store a connection type.
class CVentDlg : public CBrushedDialog, private CAnschlussAnsicht
{
public:
    CVentDlg();
    ~CVentDlg() override;

    /// What is edited, copied. This and the following setters are for before DoModal().
    void SetzeEingang(const ConnValues& anschluss, const VDI3805_VENTIL_KV& ventilAN,
                      const VDI3805_VENTIL_KV& ventilRI);
    /// Where the connection points show; both may be null, and must outlive the dialog.
    void SetzeZeichnung(TGA_LIST* liste, CDrawer* drawer);
    void SetzeRechte(bool superUser, bool gruppenWaehlbar);
    void SetzeFanCoil(bool fanCoil) { m_bFanCoil = fanCoil; }

    /// What the user chose, after DoModal() gave kIdOk.
    void HoleErgebnis(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilAN,
                      VDI3805_VENTIL_KV& ventilRI) const;
    bool TypAktiv() const { return m_bTypAktiv; }
    bool VentileAktiv() const { return m_bVentileAktiv; }
    bool FanCoil() const { return m_bFanCoil; }

protected:
    const CMessageMap& GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;
    bool OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void OnPaint() override;

private:
    /// One of the two valves with its controls.
    struct Ventilseite
    {
        VDI3805_VENTIL_KV& ventil;
        CString& textDn;
        bool& uebernehmen;
        int idGruppe;
        int idBezeichnung;
        int idEinstellbar;
    };
    Ventilseite SeiteAN();
    Ventilseite SeiteRI();

    void ZeichneAnschluss() override;
    void ZeichneVorschau() override;
    void ZeigeFelder() override;
    void LeseFelder() override;
    void ZeigePunkt(Punkt punkt) override;
    int AnzahlNamen() const override;
    void FuegeNameHinzu(const CString& name) override;
    void WaehleName(int index) override;
    int GewaehlterName() const override;
    void WaehleAnschlussTyp() override;

    void LadeKurzliste();
    void ZeigeEinheiten();
    void ZeigeEingang();
    void LadeIcons();
    void FuelleGrafikListen();
    void WaehleGrafiken(const CString& pfad);
    void UmschaltenErweitert();
    void ZeigeVentile();
    void ZeigeVentil(const Ventilseite& seite);
    void WaehleVentil(const Ventilseite& von, const Ventilseite& nach, int nummer);
    void Uebernehme(const Ventilseite& von, const Ventilseite& nach);
    void LesePunkt();
    void SchreibePunkt();
    void LeseSeitAbstaende();
    void UebernehmeFelder();
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
    void OnVentilAN();
    void OnVentilRI();
    void OnUebernehmeAN();
    void OnUebernehmeRI();
    void OnLeereAN();
    void OnLeereRI();
    void OnGrafik();
    void OnLeereGrafik();
    void OnSalva();
    void OnMemorizza();

    CAnschlussZustand m_zustand;
    VDI3805_VENTIL_KV m_VentilAN;
    VDI3805_VENTIL_KV m_VentilRI;
    /// A copy of that valve to the other side is pending.
    bool m_bUebernehmeAN = false;
    bool m_bUebernehmeRI = false;
    TGA_LIST* m_pListe = nullptr;
    CDrawer* m_pDrawer = nullptr;
    bool m_bErweitert = true;
    int m_RichtungIndex = 0;
    bool m_bSuperUser = false;
    bool m_bGruppenWaehlbar = false;
    CString m_GrafikAN;
    CString m_GrafikRI;

    bool m_bTypAktiv = true;
    bool m_bVentileAktiv = true;
    bool m_bInverti = false;
    bool m_bVonWand = false;
    bool m_bFanCoil = false;
    int m_Kreuz = -1;
    int m_Preset = -1;
    CString m_TextKreuz;
    CString m_TextWand;
    CString m_TextDnAN = L"15";
    CString m_TextDnRI = L"15";
    std::array<double, 3> m_Rel{};
    std::array<double, 3> m_Offset{};
    std::array<double, 2> m_Winkel{};

    CComboBox m_typen;
    CComboBox m_grafikenAN;
    CComboBox m_grafikenRI;
};
