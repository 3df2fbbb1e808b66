#include "connection/dialog/vent_dlg.h"

#include "common/units.h"
#include "connection/anschluss_felder.h"
#include "connection/bild_geometrie.h"
#include "connection/dialog/anschluss_bild.h"
#include "connection/dialog/vent_template.h"
#include "connection/grafik_listen.h"
#include "connection/kurzliste.h"
#include "connection/vorschau.h"
#include "dialogs/platzierung.h"
#include "host/drawer.h"
#include "host/host_catalog.h"
#include "platform/format.h"
#include "uikit/application.h"
#include "uikit/button.h"
#include "valve/dialog/ventil_dialog.h"
#include "valve/ventil_texte.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr wchar_t kPlatzierung[] = L"VENTIL";
constexpr int kIconKante = 16;

/// Numbers of its texts in the module's string table.
enum VentText
{
    textRegolabile = 114,
    textNonRegolabile = 115,
    textUebernehmen = 116,
    textEspandi = 117,
    textRiduci = 118,
};

constexpr std::initializer_list<int> kPunktFelder = {
    idWinkel1, idWinkel2, idRelX, idRelY, idRelZ, idOffsetX, idOffsetY, idOffsetZ, idRichtung};

/// What shows in the expanded state only.
constexpr int kErweiterung[] = {idPunktRahmen, idRelTitel,     idRelX,     idPfeilRelX,
                                idRelY,        idPfeilRelY,    idRelZ,     idPfeilRelZ,
                                idWinkel1,     idWinkel2,      idRichtung, idOffsetTitel,
                                idOffsetX,     idPfeilOffsetX, idOffsetY,  idPfeilOffsetY,
                                idOffsetZ,     idPfeilOffsetZ, idFanCoil};

/// A pair of arrows and the number beside it.
struct CPfeilFeld
{
    int id;
    ConnVector CAnschlussZustand::*zahlen;
    std::size_t achse;
};

constexpr CPfeilFeld kPfeile[] = {
    {idPfeilRelX, &CAnschlussZustand::m_Rel, 0},
    {idPfeilRelY, &CAnschlussZustand::m_Rel, 1},
    {idPfeilRelZ, &CAnschlussZustand::m_Rel, 2},
    {idPfeilOffsetX, &CAnschlussZustand::m_Offset, 0},
    {idPfeilOffsetY, &CAnschlussZustand::m_Offset, 1},
    {idPfeilOffsetZ, &CAnschlussZustand::m_Offset, 2},
};

/// The labels that show the valve of a point.
struct CVentilLabels
{
    int gruppe;
    int bezeichnung;
    int einstellbar;
};

CVentilLabels LabelsVon(Punkt punkt)
{
    return punkt == Punkt::ruecklauf ? CVentilLabels{idGruppeRI, idBezeichnungRI, idEinstellbarRI}
                                     : CVentilLabels{idGruppeAN, idBezeichnungAN, idEinstellbarAN};
}

/// Offers the valve of a point to the other one; the user reads 1 for the flow, 2 for the return.
CString UebernehmeText(Punkt von)
{
    CString text = VentilString(textUebernehmen);
    const CString platz = L"%d";
    text.replace(text.find(platz), platz.size(), FormatInt(von == Punkt::ruecklauf ? 2 : 1));
    return text;
}

/// Pixels by which the dialog is lower when collapsed: 120 at the font that the template is made
/// for, more at a larger one, whose rows are higher.
int Einklappung()
{
    constexpr int kVorlagenPixel = 120;
    return static_cast<int>(std::lround(kVorlagenPixel * GetDialogScale()));
}

} // namespace

CVentDlg::CVentDlg(const CVentVorgaben& vorgaben)
    : CBrushedDialog(VentTemplate()), m_pListe(vorgaben.liste), m_pDrawer(vorgaben.drawer),
      m_bSuperUser(vorgaben.superUser), m_bGruppenWaehlbar(vorgaben.gruppenWaehlbar),
      m_bFanCoil(vorgaben.fanCoil)
{
    m_zustand.m_Eingang = vorgaben.anschluss;
    m_ventile.m_VentilAN = vorgaben.ventilAN;
    m_ventile.m_VentilRI = vorgaben.ventilRI;
    // Handlers of fields are meant for what the user types, not for what the dialog shows.
    DropExchangeEvents(true);
}

CVentDlg::~CVentDlg() = default;

void CVentDlg::HoleErgebnis(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilAN,
                            VDI3805_VENTIL_KV& ventilRI, bool& ventile, bool& typ,
                            bool& fanCoil) const
{
    anschluss = m_zustand.m_Aktuell;
    ventilAN = m_ventile.m_VentilAN;
    ventilRI = m_ventile.m_VentilRI;
    anschluss.GrafikAN = m_GrafikAN;
    anschluss.GrafikRI = m_GrafikRI;
    ventile = m_bVentileAktiv;
    typ = m_bTypAktiv;
    fanCoil = m_bFanCoil;
}

const CMessageMap& CVentDlg::GetMessageMap() const
{
    using enum ControlEvent;
    static const CMessageMap map(
        &CBrushedDialog::GetMessageMap(),
        {
            On(selectionEnded, idTypen, &CVentDlg::WaehleAnschlussTyp),
            On(clicked, idTypAktiv, &CVentDlg::OnTypAktiv),
            On(clicked, idVentileAktiv, &CVentDlg::OnVentileAktiv),
            On(clicked, idKreuzKeins, &CVentDlg::OnKreuz),
            OnRange(clicked, idKreuzAnUeberRi, idKreuzRiUeberAn, &CVentDlg::OnKreuz),
            On(focusLost, idSeitAN, &CVentDlg::OnSeitAbstand),
            On(focusLost, idSeitRI, &CVentDlg::OnSeitAbstand),
            On(clicked, idVonWand, &CVentDlg::OnVonWand),
            On(clicked, idInverti, &CVentDlg::OnInverti),
            OnRange(clicked, idErsterPreset, idLetzterPreset, &CVentDlg::OnPreset),
            OnRange(clicked, idPunktAN, idPunktRI, &CVentDlg::LesePunkt),
            OnRange(textChanged, idRelX, idWinkel2, &CVentDlg::SchreibePunkt),
            On(textChanged, idOffsetY, &CVentDlg::SchreibePunkt),
            On(textChanged, idOffsetZ, &CVentDlg::SchreibePunkt),
            On(focusLost, idOffsetX, &CVentDlg::SchreibePunkt),
            On(focusLost, idWinkel1, &CVentDlg::SchreibePunkt),
            OnRange(step, idPfeilRelX, idPfeilOffsetZ, &CVentDlg::OnSchritt),
            On(step, idRichtung, &CVentDlg::OnRichtung),
            On(clicked, idWaehleAN, &CVentDlg::OnVentil),
            On(clicked, idWaehleRI, &CVentDlg::OnVentil),
            On(clicked, idEinstellbarRI, &CVentDlg::OnUebernehme),
            On(clicked, idEinstellbarAN, &CVentDlg::OnUebernehme),
            On(clicked, idLeereAN, &CVentDlg::OnLeereVentil),
            On(clicked, idLeereRI, &CVentDlg::OnLeereVentil),
            OnRange(selectionEnded, idGrafikenAN, idGrafikenRI, &CVentDlg::OnGrafik),
            On(clicked, idLeereGrafik, &CVentDlg::OnLeereGrafik),
            OnRange(textChanged, idDnAN, idDnRI, &CVentDlg::LeseFelder),
            On(clicked, idSalva, &CVentDlg::OnSalva),
            On(clicked, idMemorizza, &CVentDlg::OnMemorizza),
            On(clicked, idErweitern, &CVentDlg::UmschaltenErweitert),
        });
    return map;
}

/// The order counts: reading stops at a field that holds no number, and the fields behind it keep
/// their values.
void CVentDlg::DoDataExchange(CDataExchange* pDX)
{
    CBrushedDialog::DoDataExchange(pDX);
    DDX_Control(pDX, idTypen, m_typen);
    DDX_Control(pDX, idGrafikenAN, m_grafikenAN);
    DDX_Control(pDX, idGrafikenRI, m_grafikenRI);
    DDX_Text(pDX, idDnAN, m_ventile.m_TextDnAN);
    DDX_Text(pDX, idSeitRI, m_zustand.m_TextSeitRI);
    DDX_Text(pDX, idSeitAN, m_zustand.m_TextSeitAN);
    DDX_Check(pDX, idInverti, m_zustand.m_bInverti);
    DDX_Text(pDX, idDnRI, m_ventile.m_TextDnRI);
    DDX_Text(pDX, idOffsetX, m_zustand.m_Offset[0]);
    DDX_Text(pDX, idOffsetY, m_zustand.m_Offset[1]);
    DDX_Text(pDX, idOffsetZ, m_zustand.m_Offset[2]);
    DDX_Text(pDX, idRelX, m_zustand.m_Rel[0]);
    DDX_Text(pDX, idRelY, m_zustand.m_Rel[1]);
    DDX_Text(pDX, idRelZ, m_zustand.m_Rel[2]);
    DDX_Text(pDX, idWinkel1, m_zustand.m_Winkel[0]);
    DDX_Text(pDX, idWinkel2, m_zustand.m_Winkel[1]);
    int punkt = static_cast<int>(m_zustand.m_Punkt);
    DDX_Radio(pDX, idPunktAN, punkt);
    m_zustand.m_Punkt = static_cast<Punkt>(punkt);
    DDX_Text(pDX, idName, m_zustand.m_TextName);
    DDX_Check(pDX, idTypAktiv, m_bTypAktiv);
    DDX_Check(pDX, idVentileAktiv, m_bVentileAktiv);
    DDX_Check(pDX, idFanCoil, m_bFanCoil);
    DDX_Radio(pDX, idErsterPreset, m_Preset);
    DDX_Radio(pDX, idKreuzKeins, m_zustand.m_Kreuz);
    DDX_Text(pDX, idWand, m_zustand.m_TextWand);
    DDX_Check(pDX, idVonWand, m_zustand.m_bVonWand);
    DDX_Text(pDX, idKreuzAbstand, m_zustand.m_TextKreuz);
}

bool CVentDlg::OnInitDialog()
{
    CBrushedDialog::OnInitDialog();
    ResetUnits();
    PlatzierungLaden(*this, kPlatzierung, nullptr, false);
    // A damaged short list must not cost the dialog the rest of its opening.
    Guard([this] { LadeKurzliste(); });
    ZeigeEinheiten();
    Aktiviere({idVentileAktiv, idTypAktiv}, m_bGruppenWaehlbar);
    ZeigeEingang();
    LadeIcons();
    UmschaltenErweitert();
    FuelleGrafikListen();
    ZeigeFelder();
    return true;
}

void CVentDlg::LadeKurzliste()
{
    if (!LeseVentTxt(m_zustand, *this)) {
        return;
    }
    WaehleAnschlussTyp();
    ZeigeVentile();
    FindeAnschlussTyp(m_zustand, *this);
}

void CVentDlg::ZeigeEinheiten()
{
    for (const int id : {idSeitEinheitAN, idSeitEinheitRI, idKreuzEinheit, idWandEinheit}) {
        SetzeText(id, GetUnitText(false));
    }
}

/// By now an entry of the short list may have been found for the record handed in and applied. The
/// numbers handed in replace those of the entry, which stays selected in the list.
void CVentDlg::ZeigeEingang()
{
    FuelleFelder(m_zustand);
    if (m_zustand.m_Aktuell.KreuzTyp == 0) {
        Aktiviere({idKreuzAbstand}, false);
    }
    Aktiviere({idWand}, m_zustand.m_bVonWand);
}

void CVentDlg::LadeIcons()
{
    const CBitmap icon = CImageLoader().LoadLumoIcon(iconLoeschen, kIconKante, kIconKante);
    if (icon.IsEmpty()) {
        return;
    }
    for (const int id : {idLeereAN, idLeereRI, idLeereGrafik}) {
        CButton(GetDlgItem(id)).SetIcon(icon);
    }
}

/// The row with the name and its buttons stays where it is. When the dialog is collapsed the row
/// lies below its lower edge, and is disabled so that the Tab key does not lead there.
void CVentDlg::UmschaltenErweitert()
{
    m_bErweitert = !m_bErweitert;
    for (const int id : kErweiterung) {
        GetDlgItem(id).ShowWindow(m_bErweitert);
    }
    Aktiviere({idName, idSalva, idMemorizza}, m_bErweitert);
    const int dy = m_bErweitert ? Einklappung() : -Einklappung();
    std::vector<Move> zuege;
    for (const int id : {kIdOk, kIdCancel, int(idErweitern)}) {
        zuege.push_back({id, GetDlgItem(id).GetPlace().MovedBy(0, dy)});
    }
    // The text of the banner begins at its lower edge and must stay in sight.
    CRect banner = GetDlgItem(kBannerId).GetPlace();
    banner.bottom += dy;
    zuege.push_back({kBannerId, banner});
    MoveControls(zuege);
    CRect fenster = GetWindowRect();
    fenster.bottom += dy;
    MoveWindow(fenster);
    SetzeText(idErweitern, VentilString(m_bErweitert ? textRiduci : textEspandi));
    if (!m_bSuperUser) {
        GetDlgItem(idErweitern).ShowWindow(false);
    }
}

void CVentDlg::ZeichneAnschluss()
{
    PruefeSeitAbstand(m_zustand, *this);
    const CWnd rahmen = GetDlgItem(idBild);
    m_BildRect = FrontAnsicht(rahmen.GetClientRect());
    ZeichneAnschlussBild(rahmen, m_BildRect, m_zustand.m_Aktuell);
}

void CVentDlg::ZeichneVorschau()
{
    if (m_pListe == nullptr || m_pDrawer == nullptr) {
        return;
    }
    ZeichneAnschlussVorschau(m_pListe, *m_pDrawer, m_zustand.m_Aktuell);
    ZeigeFelder();
}

void CVentDlg::ZeigePunkt(Punkt punkt)
{
    CButton(GetDlgItem(punkt == Punkt::ruecklauf ? idPunktRI : idPunktAN)).SetCheck(true);
}

void CVentDlg::WaehleAnschlussTyp()
{
    Aktiviere(kPunktFelder, false);
    m_Preset = -1;
    if (!UebernehmeTyp(m_zustand, m_typen)) {
        return;
    }
    ZeigeFelder();
    LesePunkt();
    ZeichneAnschluss();
    ZeichneVorschau();
}

void CVentDlg::LesePunkt()
{
    LeseFelder();
    if (::LesePunkt(m_zustand)) {
        Aktiviere(kPunktFelder, true);
        ZeigeFelder();
    }
}

void CVentDlg::SchreibePunkt()
{
    LeseFelder();
    if (::SchreibePunkt(m_zustand)) {
        ZeichneAnschluss();
        ZeichneVorschau();
    }
}

void CVentDlg::Aktiviere(std::initializer_list<int> ids, bool aktiv)
{
    for (const int id : ids) {
        GetDlgItem(id).EnableWindow(aktiv);
    }
}

void CVentDlg::SetzeText(int id, const CString& text)
{
    GetDlgItem(id).SetWindowText(text);
}

void CVentDlg::OnTypAktiv()
{
    LeseFelder();
    Aktiviere({idTypen, idInverti, idSeitAN, idSeitRI, idBild}, m_bTypAktiv);
}

void CVentDlg::OnVentileAktiv()
{
    LeseFelder();
    Aktiviere({idDnAN, idWaehleAN, idPunktAN, idGruppeAN, idBezeichnungAN, idDnRI, idGruppeRI,
               idBezeichnungRI, idWaehleRI, idPunktRI, idLeereAN, idLeereRI},
              m_bVentileAktiv);
}

void CVentDlg::OnKreuz()
{
    LeseFelder();
    Aktiviere({idKreuzAbstand}, m_zustand.m_Kreuz != 0);
    ZeigeFelder();
}

void CVentDlg::OnSeitAbstand()
{
    LeseFelder();
    LeseSeitAbstaende(m_zustand);
    PruefeSeitAbstand(m_zustand, *this);
}

void CVentDlg::OnVonWand()
{
    LeseFelder();
    Aktiviere({idWand}, m_zustand.m_bVonWand);
    ErgaenzeWandAbstand(m_zustand);
    ZeigeFelder();
}

void CVentDlg::OnInverti()
{
    LeseFelder();
    TauscheAnRi(m_zustand, *this);
}

void CVentDlg::OnPreset()
{
    LeseFelder();
    // Reading may have stopped at a field without a number, before it came to the buttons.
    if (m_Preset >= 0) {
        SetzePreset(m_Preset, m_zustand, *this);
    }
}

void CVentDlg::OnSchritt(CNotify& notify)
{
    const auto* const pfeil = std::ranges::find(kPfeile, notify.id, &CPfeilFeld::id);
    double& zahl = (m_zustand.*pfeil->zahlen)[pfeil->achse];
    zahl = Geschoben(zahl, notify.delta);
    ZeigeFelder();
    SchreibePunkt();
}

void CVentDlg::OnRichtung(CNotify& notify)
{
    const std::size_t schritt = notify.delta < 1 ? kRichtungen - 1 : 1;
    m_RichtungIndex = (m_RichtungIndex + schritt) % kRichtungen;
    std::ranges::copy(m_Richtungen[m_RichtungIndex], m_zustand.m_Winkel.begin());
    ZeigeFelder();
    SchreibePunkt();
}

void CVentDlg::ZeigeVentile()
{
    ZeigeVentil(Punkt::vorlauf);
    ZeigeVentil(Punkt::ruecklauf);
    ZeigeNennweiten(m_ventile);
    ZeigeFelder();
}

void CVentDlg::ZeigeVentil(Punkt punkt)
{
    const VDI3805_VENTIL_KV& ventil = SeiteVon(m_ventile, punkt).ventil;
    const CVentilLabels labels = LabelsVon(punkt);
    SetzeText(labels.gruppe, ventil.Gruppe);
    SetzeText(labels.bezeichnung, ventil.Bezeichnung);
    SetzeText(labels.einstellbar,
              VentilString(ventil.Einstellbar != 0 ? textRegolabile : textNonRegolabile));
}

/// A point without a valve takes over the one that was just picked for the other.
void CVentDlg::OnVentil(CNotify& notify)
{
    const Punkt von = notify.id == idWaehleRI ? Punkt::ruecklauf : Punkt::vorlauf;
    const CVentilSeite seite = SeiteVon(m_ventile, von);
    if (!ZeigeVentilDialog(seite.ventil.VentilNr, seite.ventil.Hersteller, seite.ventil)) {
        return;
    }
    ZeigeVentile();
    const Punkt nach = Gegenueber(von);
    if (SeiteVon(m_ventile, nach).ventil.Bezeichnung.empty()) {
        SetzeText(LabelsVon(nach).einstellbar, UebernehmeText(von));
        seite.uebernehmen = true;
        UebernehmeVentil(von);
    }
}

void CVentDlg::OnUebernehme(CNotify& notify)
{
    UebernehmeVentil(notify.id == idEinstellbarRI ? Punkt::vorlauf : Punkt::ruecklauf);
}

void CVentDlg::UebernehmeVentil(Punkt von)
{
    if (Uebernehme(m_ventile, von)) {
        ZeigeVentil(Gegenueber(von));
        ZeigeFelder();
    }
}

void CVentDlg::OnLeereVentil(CNotify& notify)
{
    SeiteVon(m_ventile, notify.id == idLeereRI ? Punkt::ruecklauf : Punkt::vorlauf).ventil.Init();
    ZeigeVentile();
}

void CVentDlg::FuelleGrafikListen()
{
    if (m_pDrawer != nullptr) {
        ::FuelleGrafikListen(*m_pDrawer, m_zustand.m_Eingang, m_grafikenAN, m_grafikenRI);
    }
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

void CVentDlg::OnSalva()
{
    m_zustand.m_bNeu = false;
    SchreibeVentTxt(m_zustand, *this);
}

void CVentDlg::OnMemorizza()
{
    LeseFelder();
    m_zustand.m_bNeu = !IstNameVergeben(m_zustand);
    SchreibeVentTxt(m_zustand, *this);
}

void CVentDlg::OnPaint()
{
    ZeichneAnschluss();
    CBrushedDialog::OnPaint();
}

void CVentDlg::OnOK()
{
    LeseFelder();
    LoescheVorschau();
    if (m_bErweitert) {
        PlatzierungSpeichern(*this, kPlatzierung, &kDeckend);
    }
    ErgaenzeNennweiten(m_ventile);
    SchliesseAb(m_zustand);
    EndDialog(kIdOk);
}

void CVentDlg::OnCancel()
{
    LoescheVorschau();
    CBrushedDialog::OnCancel();
}

void CVentDlg::LoescheVorschau()
{
    if (m_pDrawer != nullptr) {
        m_pDrawer->ClearPreview();
    }
}
