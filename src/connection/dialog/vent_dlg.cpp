#include "connection/dialog/vent_dlg.h"

#include "common/numbers.h"
#include "common/units.h"
#include "connection/dialog/anschluss_bild_control.h"
#include "connection/dialog/vent_controls.h"
#include "connection/dialog/vent_template.h"
#include "connection/kurzliste.h"
#include "connection/vorschau.h"
#include "dialogs/platzierung.h"
#include "host/drawer.h"
#include "host/host_catalog.h"
#include "host/host_fittings.h"
#include "uikit/application.h"
#include "uikit/button.h"
#include "valve/ventil_texte.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr wchar_t kPlatzierung[] = L"VENTIL";
constexpr int kIconKante = 16;

/// What one press of an arrow beside a point field adds.
constexpr double kSchritt = 0.05;

/// The directions that the arrows beside the angles go through.
constexpr std::array<std::array<double, 2>, 4> kRichtungen = {
    {{0.0, 0.0}, {180.0, 0.0}, {0.0, 90.0}, {0.0, 270.0}}};

constexpr std::initializer_list<int> kPunktFelder = {1017, 1018, 1013, 1015,      1016,
                                                     1014, 1020, 1023, idRichtung};

/// What shows in the expanded state only.
constexpr int kErweiterung[] = {18051, 18052, 1013, 1034, 1015, 1040, 1016, 1042, 1017, 1018,
                                18075, 18108, 1014, 1039, 1020, 1041, 1023, 1043, 18045};

/// Arrows beside the coordinates, in the order of the axes.
constexpr int kPfeileRel[] = {1034, 1040, 1042};
constexpr int kPfeileOffset[] = {1039, 1041, 1043};

/// Pixels by which the dialog is lower when collapsed. They are pixels at the size for which the
/// template is made: at a larger font the rows that give way are higher too.
int Einklappung()
{
    constexpr int kVorlagenPixel = 120;
    return static_cast<int>(std::lround(kVorlagenPixel * GetDialogScale()));
}

} // namespace

CVentDlg::CVentDlg() : CBrushedDialog(VentTemplate())
{
    // What a field shows is no typing of the user's.
    DropExchangeEvents(true);
}

CVentDlg::~CVentDlg() = default;

void CVentDlg::SetzeEingang(const ConnValues& anschluss, const VDI3805_VENTIL_KV& ventilAN,
                            const VDI3805_VENTIL_KV& ventilRI)
{
    m_zustand.m_Eingang = anschluss;
    m_VentilAN = ventilAN;
    m_VentilRI = ventilRI;
}

void CVentDlg::SetzeZeichnung(TGA_LIST* liste, CDrawer* drawer)
{
    m_pListe = liste;
    m_pDrawer = drawer;
}

void CVentDlg::SetzeRechte(bool superUser, bool gruppenWaehlbar)
{
    m_bSuperUser = superUser;
    m_bGruppenWaehlbar = gruppenWaehlbar;
}

/// The names of the graphics are those chosen here: a user who leaves the lists alone takes the
/// graphics away.
void CVentDlg::HoleErgebnis(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilAN,
                            VDI3805_VENTIL_KV& ventilRI) const
{
    anschluss = m_zustand.m_Aktuell;
    ventilAN = m_VentilAN;
    ventilRI = m_VentilRI;
    anschluss.GrafikAN = m_GrafikAN;
    anschluss.GrafikRI = m_GrafikRI;
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
            On(clicked, idKreuz, &CVentDlg::OnKreuz),
            OnRange(clicked, 18100, 18101, &CVentDlg::OnKreuz),
            On(focusLost, idSeitAN, &CVentDlg::OnSeitAbstand),
            On(focusLost, idSeitRI, &CVentDlg::OnSeitAbstand),
            On(clicked, idVonWand, &CVentDlg::OnVonWand),
            On(clicked, idInverti, &CVentDlg::OnInverti),
            OnRange(clicked, idErsterPreset, idLetzterPreset, &CVentDlg::OnPreset),
            OnRange(clicked, idPunktAN, idPunktRI, &CVentDlg::LesePunkt),
            OnRange(textChanged, 1013, 1018, &CVentDlg::SchreibePunkt),
            On(textChanged, 1020, &CVentDlg::SchreibePunkt),
            On(textChanged, 1023, &CVentDlg::SchreibePunkt),
            On(focusLost, 1014, &CVentDlg::SchreibePunkt),
            On(focusLost, 1017, &CVentDlg::SchreibePunkt),
            OnRange(step, 1034, 1043, &CVentDlg::OnSchritt),
            On(step, idRichtung, &CVentDlg::OnRichtung),
            On(clicked, idWaehleAN, &CVentDlg::OnVentilAN),
            On(clicked, idWaehleRI, &CVentDlg::OnVentilRI),
            On(clicked, idEinstellbarRI, &CVentDlg::OnUebernehmeAN),
            On(clicked, idEinstellbarAN, &CVentDlg::OnUebernehmeRI),
            On(clicked, idLeereAN, &CVentDlg::OnLeereAN),
            On(clicked, idLeereRI, &CVentDlg::OnLeereRI),
            OnRange(selectionEnded, idGrafikenAN, idGrafikenRI, &CVentDlg::OnGrafik),
            On(clicked, idLeereGrafik, &CVentDlg::OnLeereGrafik),
            OnRange(textChanged, idDnAN, idDnRI, &CVentDlg::LeseFelder),
            On(clicked, idSalva, &CVentDlg::OnSalva),
            On(clicked, idMemorizza, &CVentDlg::OnMemorizza),
            On(clicked, idErweitern, &CVentDlg::UmschaltenErweitert),
        });
    return map;
}

/// The order counts: a field that cannot be read keeps those behind it from being read.
void CVentDlg::DoDataExchange(CDataExchange* pDX)
{
    CBrushedDialog::DoDataExchange(pDX);
    DDX_Control(pDX, idTypen, m_typen);
    DDX_Control(pDX, idGrafikenAN, m_grafikenAN);
    DDX_Control(pDX, idGrafikenRI, m_grafikenRI);
    DDX_Text(pDX, idDnAN, m_TextDnAN);
    DDX_Text(pDX, idSeitRI, m_zustand.m_TextSeitRI);
    DDX_Text(pDX, idSeitAN, m_zustand.m_TextSeitAN);
    DDX_Check(pDX, idInverti, m_bInverti);
    DDX_Text(pDX, idDnRI, m_TextDnRI);
    DDX_Text(pDX, 1014, m_Offset[0]);
    DDX_Text(pDX, 1020, m_Offset[1]);
    DDX_Text(pDX, 1023, m_Offset[2]);
    DDX_Text(pDX, 1013, m_Rel[0]);
    DDX_Text(pDX, 1015, m_Rel[1]);
    DDX_Text(pDX, 1016, m_Rel[2]);
    DDX_Text(pDX, 1017, m_Winkel[0]);
    DDX_Text(pDX, 1018, m_Winkel[1]);
    int punkt = static_cast<int>(m_zustand.m_Punkt);
    DDX_Radio(pDX, idPunktAN, punkt);
    m_zustand.m_Punkt = static_cast<Punkt>(punkt);
    DDX_Text(pDX, idName, m_zustand.m_TextName);
    DDX_Check(pDX, idTypAktiv, m_bTypAktiv);
    DDX_Check(pDX, idVentileAktiv, m_bVentileAktiv);
    DDX_Check(pDX, idFanCoil, m_bFanCoil);
    DDX_Radio(pDX, idErsterPreset, m_Preset);
    DDX_Radio(pDX, idKreuz, m_Kreuz);
    DDX_Text(pDX, idWand, m_TextWand);
    DDX_Check(pDX, idVonWand, m_bVonWand);
    DDX_Text(pDX, idKreuzAbstand, m_TextKreuz);
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
    for (const int id : {18042, 18044, 18046, 18047}) {
        SetzeText(id, GetUnitText(false));
    }
}

/// The numbers handed in win over those of the entry that was found for them, which stays chosen.
void CVentDlg::ZeigeEingang()
{
    ConnValues& werte = m_zustand.m_Aktuell;
    werte = m_zustand.m_Eingang;
    m_zustand.m_TextSeitAN = MeterToText(werte.SeitAbstandAN);
    m_zustand.m_TextSeitRI = MeterToText(werte.SeitAbstandRI);
    m_zustand.m_TextName = werte.Name;
    m_Kreuz = werte.KreuzTyp;
    if (werte.KreuzTyp != 0) {
        m_TextKreuz = MeterToText(werte.KreuzAbstand);
    } else {
        Aktiviere({idKreuzAbstand}, false);
    }
    if (werte.WandAbstand != 0.0) {
        m_bVonWand = true;
        m_TextWand = MeterToText(werte.WandAbstand);
    }
    Aktiviere({idWand}, m_bVonWand);
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

/// The row with the name and its buttons stays where it is: collapsed, it lies below the edge,
/// where the Tab key must not find it either.
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
    // The banner is as high as the dialog, so that its text begins at the lower edge.
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
    ZeichneAnschlussBild(GetDlgItem(idBild), m_zustand.m_Aktuell);
}

void CVentDlg::ZeichneVorschau()
{
    if (m_pListe == nullptr || m_pDrawer == nullptr) {
        return;
    }
    ZeichneAnschlussVorschau(m_pListe, *m_pDrawer, m_zustand.m_Aktuell);
    ZeigeFelder();
}

void CVentDlg::ZeigeFelder()
{
    UpdateData(false);
}

void CVentDlg::LeseFelder()
{
    UpdateData(true);
}

void CVentDlg::ZeigePunkt(Punkt punkt)
{
    CButton(GetDlgItem(punkt == Punkt::ruecklauf ? idPunktRI : idPunktAN)).SetCheck(true);
}

int CVentDlg::AnzahlNamen() const
{
    return m_typen.GetCount();
}

void CVentDlg::FuegeNameHinzu(const CString& name)
{
    m_typen.AddString(name);
}

void CVentDlg::WaehleName(int index)
{
    m_typen.SetCurSel(index);
}

int CVentDlg::GewaehlterName() const
{
    return m_typen.GetCurSel();
}

void CVentDlg::WaehleAnschlussTyp()
{
    Aktiviere(kPunktFelder, false);
    m_Preset = -1;
    int index = m_typen.GetCurSel();
    if (index < 0) {
        return;
    }
    Anschlussliste& liste = m_zustand.m_Anschlussliste;
    if (index >= liste.GetSize()) {
        index = 0;
        m_typen.SetCurSel(index);
    }
    m_bInverti = false;
    m_zustand.m_Aktuell = liste[index];
    LeseSeitAbstaende();
    m_zustand.m_TextName = m_zustand.m_Aktuell.Name;
    ZeigeFelder();
    LesePunkt();
    ZeichneAnschluss();
    ZeichneVorschau();
}

void CVentDlg::LesePunkt()
{
    LeseFelder();
    const ConnValues& werte = m_zustand.m_Aktuell;
    if (m_zustand.m_Punkt == Punkt::keiner) {
        return;
    }
    const CString& text =
        m_zustand.m_Punkt == Punkt::vorlauf ? werte.AnschlussAN : werte.AnschlussRI;
    ConnVector position{};
    ConnVector offset{};
    ConnVector winkel{};
    double seitAbstand = 0.0;
    double kreuzAbstand = 0.0;
    int kreuzTyp = 0;
    double wandAbstand = 0.0;
    if (lmGet_K_APUNKT_X(text, position.data(), offset.data(), winkel.data(), seitAbstand,
                         kreuzAbstand, kreuzTyp, wandAbstand) == 0) {
        return;
    }
    m_Rel = position;
    m_Offset = offset;
    m_Winkel = {winkel[0], winkel[1]};
    Aktiviere(kPunktFelder, true);
    ZeigeFelder();
}

void CVentDlg::SchreibePunkt()
{
    LeseFelder();
    ConnValues& werte = m_zustand.m_Aktuell;
    const ConnVector winkel = {m_Winkel[0], m_Winkel[1], 0.0};
    CString text;
    lmSet_K_APUNKT_X(text, m_Rel.data(), m_Offset.data(), winkel.data(), 0.0, 0.0, 0, 0.0);
    switch (m_zustand.m_Punkt) {
    case Punkt::keiner:
        return;
    case Punkt::vorlauf:
        werte.PosAN = m_Rel;
        werte.OffsetAN = m_Offset;
        werte.WinkelAN = winkel;
        werte.AnschlussAN = text;
        break;
    case Punkt::ruecklauf:
        werte.PosRI = m_Rel;
        werte.OffsetRI = m_Offset;
        werte.WinkelRI = winkel;
        werte.AnschlussRI = text;
        break;
    }
    ZeichneAnschluss();
    ZeichneVorschau();
}

void CVentDlg::LeseSeitAbstaende()
{
    m_zustand.m_Aktuell.SeitAbstandAN = TextToMeter(m_zustand.m_TextSeitAN);
    m_zustand.m_Aktuell.SeitAbstandRI = TextToMeter(m_zustand.m_TextSeitRI);
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
    Aktiviere({idDnAN, idWaehleAN, idPunktAN, 363, 364, idDnRI, 365, 366, idWaehleRI, idPunktRI,
               idLeereAN, idLeereRI},
              m_bVentileAktiv);
}

void CVentDlg::OnKreuz()
{
    LeseFelder();
    Aktiviere({idKreuzAbstand}, m_Kreuz != 0);
    ZeigeFelder();
}

void CVentDlg::OnSeitAbstand()
{
    LeseFelder();
    LeseSeitAbstaende();
    PruefeSeitAbstand(m_zustand, *this);
}

void CVentDlg::OnVonWand()
{
    LeseFelder();
    Aktiviere({idWand}, m_bVonWand);
    if (m_bVonWand && TextToMeter(m_TextWand) == 0.0) {
        m_TextWand = m_zustand.m_TextSeitAN;
    }
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
    // A field in front of the buttons that could not be read leaves them unread too.
    if (m_Preset >= 0) {
        SetzePreset(m_Preset, m_zustand, *this);
    }
}

void CVentDlg::OnSchritt(CNotify& notify)
{
    const auto ruecke = [&](const auto& ids, std::array<double, 3>& felder) {
        const auto* gefunden = std::ranges::find(ids, notify.id);
        if (gefunden != std::end(ids)) {
            felder[static_cast<std::size_t>(gefunden - std::begin(ids))] +=
                notify.delta < 1 ? -kSchritt : kSchritt;
        }
    };
    ruecke(kPfeileRel, m_Rel);
    ruecke(kPfeileOffset, m_Offset);
    ZeigeFelder();
    SchreibePunkt();
}

void CVentDlg::OnRichtung(CNotify& notify)
{
    constexpr int kAnzahl = static_cast<int>(kRichtungen.size());
    const int schritt = notify.delta < 1 ? kAnzahl - 1 : 1;
    m_RichtungIndex = (m_RichtungIndex + schritt) % kAnzahl;
    m_Winkel = kRichtungen[static_cast<std::size_t>(m_RichtungIndex)];
    ZeigeFelder();
    SchreibePunkt();
}

void CVentDlg::OnSalva()
{
    m_zustand.m_bNeu = false;
    SchreibeVentTxt(m_zustand, *this);
}

void CVentDlg::OnMemorizza()
{
    LeseFelder();
    m_zustand.m_bNeu = true;
    for (const ConnValues& eintrag : m_zustand.m_Anschlussliste) {
        if (eintrag.Name == m_zustand.m_TextName) {
            m_zustand.m_bNeu = false;
        }
    }
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
    if (m_pDrawer != nullptr) {
        m_pDrawer->ClearPreview();
    }
    if (m_bErweitert) {
        PlatzierungSpeichern(*this, kPlatzierung, &kDeckend);
    }
    UebernehmeFelder();
    EndDialog(kIdOk);
}

/// The distance from the wall is no matter of the points, and so is no part of their texts.
void CVentDlg::UebernehmeFelder()
{
    for (const Ventilseite& seite : {SeiteAN(), SeiteRI()}) {
        if (seite.ventil.DN <= 0) {
            seite.ventil.DN = ParseNumber(seite.textDn);
        }
    }
    LeseSeitAbstaende();
    ConnValues& werte = m_zustand.m_Aktuell;
    // Each point on its own here: what leaves upward or downward has no distance at its side.
    if (werte.WinkelAN[1] != 0.0) {
        werte.SeitAbstandAN = 0.0;
    }
    if (werte.WinkelRI[1] != 0.0) {
        werte.SeitAbstandRI = 0.0;
    }
    werte.KreuzTyp = m_Kreuz;
    werte.KreuzAbstand = TextToMeter(m_TextKreuz);
    werte.WandAbstand = m_bVonWand ? TextToMeter(m_TextWand) : 0.0;
    lmSet_K_APUNKT_X(werte.AnschlussAN, werte.PosAN.data(), werte.OffsetAN.data(),
                     werte.WinkelAN.data(), werte.SeitAbstandAN, werte.KreuzAbstand, werte.KreuzTyp,
                     0.0);
    lmSet_K_APUNKT_X(werte.AnschlussRI, werte.PosRI.data(), werte.OffsetRI.data(),
                     werte.WinkelRI.data(), werte.SeitAbstandRI, werte.KreuzAbstand, werte.KreuzTyp,
                     0.0);
}

void CVentDlg::OnCancel()
{
    if (m_pDrawer != nullptr) {
        m_pDrawer->ClearPreview();
    }
    CBrushedDialog::OnCancel();
}
