// The valves and their graphics in the valve and connection dialog.

#include "connection/dialog/vent_controls.h"
#include "connection/dialog/vent_dlg.h"
#include "host/drawer.h"
#include "host/host_prefs.h"
#include "platform/format.h"
#include "valve/dialog/ventil_dialog.h"
#include "valve/ventil_texte.h"

namespace {

CString EinstellbarText(const VDI3805_VENTIL_KV& ventil)
{
    return VentilString(ventil.Einstellbar != 0 ? textRegolabile : textNonRegolabile);
}

CString UebernehmeText(int nummer)
{
    CString text = VentilString(textUebernehmen);
    const CString platz = L"%d";
    text.replace(text.find(platz), platz.size(), FormatInt(nummer));
    return text;
}

CString DnText(const VDI3805_VENTIL_KV& ventil)
{
    return FormatFixed(ventil.DN, 0);
}

} // namespace

CVentDlg::Ventilseite CVentDlg::SeiteAN()
{
    return {m_VentilAN, m_TextDnAN, m_bUebernehmeAN, 363, 364, idEinstellbarAN};
}

CVentDlg::Ventilseite CVentDlg::SeiteRI()
{
    return {m_VentilRI, m_TextDnRI, m_bUebernehmeRI, 365, 366, idEinstellbarRI};
}

void CVentDlg::ZeigeVentile()
{
    for (const Ventilseite& seite : {SeiteAN(), SeiteRI()}) {
        ZeigeVentil(seite);
        if (seite.ventil.DN > 0) {
            seite.textDn = DnText(seite.ventil);
        }
    }
    ZeigeFelder();
}

void CVentDlg::ZeigeVentil(const Ventilseite& seite)
{
    SetzeText(seite.idGruppe, seite.ventil.Gruppe);
    SetzeText(seite.idBezeichnung, seite.ventil.Bezeichnung);
    SetzeText(seite.idEinstellbar, EinstellbarText(seite.ventil));
}

/// A side without a valve takes over the one that was just picked for the other.
void CVentDlg::WaehleVentil(const Ventilseite& von, const Ventilseite& nach, int nummer)
{
    if (!ZeigeVentilDialog(von.ventil.VentilNr, von.ventil.Hersteller, von.ventil)) {
        return;
    }
    ZeigeVentile();
    if (nach.ventil.Bezeichnung.empty()) {
        SetzeText(nach.idEinstellbar, UebernehmeText(nummer));
        von.uebernehmen = true;
        Uebernehme(von, nach);
    }
}

void CVentDlg::Uebernehme(const Ventilseite& von, const Ventilseite& nach)
{
    if (!von.uebernehmen) {
        return;
    }
    nach.ventil = von.ventil;
    ZeigeVentil(nach);
    nach.textDn = DnText(nach.ventil);
    ZeigeFelder();
    von.uebernehmen = false;
}

void CVentDlg::OnVentilAN()
{
    WaehleVentil(SeiteAN(), SeiteRI(), 1);
}

void CVentDlg::OnVentilRI()
{
    WaehleVentil(SeiteRI(), SeiteAN(), 2);
}

void CVentDlg::OnUebernehmeAN()
{
    Uebernehme(SeiteAN(), SeiteRI());
}

void CVentDlg::OnUebernehmeRI()
{
    Uebernehme(SeiteRI(), SeiteAN());
}

void CVentDlg::OnLeereAN()
{
    m_VentilAN.Init();
    ZeigeVentile();
}

void CVentDlg::OnLeereRI()
{
    m_VentilRI.Init();
    ZeigeVentile();
}

void CVentDlg::FuelleGrafikListen()
{
    if (m_pDrawer == nullptr) {
        return;
    }
    CString pfad;
    lmGetDWGDefPath(LumoDWGDefsNames::ventile, pfad);
    WaehleGrafiken(pfad);
    CString block;
    if (!lmGetHKBlock(block)) {
        m_grafikenAN.SetCurSel(0);
        return;
    }
    const int gefunden = m_grafikenAN.FindString(0, block);
    if (gefunden >= 0) {
        m_grafikenAN.SetCurSel(gefunden);
    }
}

/// The places of the graphics handed in count in the order of the drawing, though the lists sort
/// themselves. What is selected here is an offer only: a graphic is taken when the user chooses it.
void CVentDlg::WaehleGrafiken(const CString& pfad)
{
    CStringArray namen;
    m_pDrawer->GetBlockNames(pfad, namen, 0);
    int stelleAN = -1;
    int stelleRI = -1;
    for (int i = 0; i < namen.GetSize(); ++i) {
        m_grafikenAN.AddString(namen[i]);
        m_grafikenRI.AddString(namen[i]);
        stelleAN = namen[i] == m_zustand.m_Eingang.GrafikAN ? i : stelleAN;
        stelleRI = namen[i] == m_zustand.m_Eingang.GrafikRI ? i : stelleRI;
    }
    m_grafikenAN.SetCurSel(stelleAN);
    m_grafikenRI.SetCurSel(stelleRI);
}

void CVentDlg::OnGrafik()
{
    if (const int index = m_grafikenAN.GetCurSel(); index >= 0) {
        m_GrafikAN = m_grafikenAN.GetItemText(index);
    }
    if (const int index = m_grafikenRI.GetCurSel(); index >= 0) {
        m_GrafikRI = m_grafikenRI.GetItemText(index);
    }
}

void CVentDlg::OnLeereGrafik()
{
    LeseFelder();
    m_grafikenAN.SetCurSel(-1);
    m_grafikenRI.SetCurSel(-1);
    m_GrafikAN.clear();
    m_GrafikRI.clear();
    ZeigeFelder();
}
