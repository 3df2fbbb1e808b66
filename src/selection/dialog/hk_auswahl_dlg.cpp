#include "selection/dialog/hk_auswahl_dlg.h"

#include "common/startwerte.h"
#include "common/units.h"
#include "connection/dialog/anschluss_dialog.h"
#include "connection/dialog/wand_ab_dlg.h"
#include "dialogs/banner.h"
#include "dialogs/list_tree.h"
#include "dialogs/platzierung.h"
#include "host/host_base.h"
#include "host/host_prefs.h"
#include "host/host_prompts.h"
#include "host/image_loader.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "selection/dialog/hk_auswahl_template.h"
#include "uikit/button.h"

#include <utility>

namespace {

constexpr wchar_t kPlatzierung[] = L"RADSEL_HK_AUSWAHL";
constexpr int kIconKante = 16;
constexpr int kTimerBesteZeile = 1;
constexpr int kTimerMillisekunden = 100;

/// What the drawing is asked for: the layers that the user may draw on, blocks of every kind, and a
/// preview in the size that the host chooses.
constexpr int kZeichenLayer = 2;
constexpr int kAlleBloecke = 0;
constexpr int kGroesseDesHosts = 0;

/// To be set for a host that draws radiators without blocks. The dialog then shows no blocks and no
/// preview, and offers the host's large layer dialog in place of the swatch where the host does not
/// manage the layers itself.
constexpr bool kOhneBlock = false;

constexpr int kListen[] = {idHeizsysteme, idHoeheVon, idHoeheBis, idTiefeVon,
                           idTiefeBis,    idLayer,    idBloecke};

/// Exchanges a number that may have more digits than its text. The exchange runs many times between
/// two inputs and must not round it: the number changes only when its text was changed. A text
/// without a number reads as 0.0 and is no error, since the user may still be typing.
void DDX_Zahl(CDataExchange* pDX, int id, double& value)
{
    const CString shown = FormatPlain(value);
    CString text = shown;
    DDX_Text(pDX, id, text);
    if (pDX->m_bSaveAndValidate && text != shown) {
        value = _wtof(text);
    }
}

/// Passes an event of a range of controls on to the criteria.
MessageEntry Zu(ControlEvent event, int erste, int letzte, void (CAuswahlKriterien::*operation)())
{
    return {event, erste, letzte, [operation](CDialog& dialog, CNotify&) {
                (static_cast<CHKAuswahlVdi3805Dlg&>(dialog).Kriterien().*operation)();
            }};
}

CString BlockOrdner()
{
    CString ordner;
    lmGetDWGDefPath(LumoDWGDefsNames::heizkoerper, ordner);
    return ordner;
}

} // namespace

CHKAuswahlVdi3805Dlg::CHKAuswahlVdi3805Dlg(CHKVdi3805& katalog, bool treffer, bool warnen)
    : CResizingDialog(HKAuswahlTemplate()), m_kriterien(*this, katalog, treffer, warnen),
      m_baum(katalog)
{
}

CHKAuswahlVdi3805Dlg::~CHKAuswahlVdi3805Dlg() = default;

void CHKAuswahlVdi3805Dlg::LayerSetzen(const CString& name, const int& farbe)
{
    m_kriterien.m_strLayer = name;
    m_kriterien.m_nLayerFarbe = farbe;
}

void CHKAuswahlVdi3805Dlg::LayerHolen(CString& name, int& farbe) const
{
    name = m_kriterien.m_strLayer;
    farbe = m_kriterien.m_nLayerFarbe;
}

void CHKAuswahlVdi3805Dlg::DrawerSetzen(CDrawer* drawer)
{
    m_pDrawer = drawer;
}

const CMessageMap& CHKAuswahlVdi3805Dlg::GetMessageMap() const
{
    using enum ControlEvent;
    using Dlg = CHKAuswahlVdi3805Dlg;
    using K = CAuswahlKriterien;
    static const CMessageMap map(
        &CResizingDialog::GetMessageMap(),
        {
            On(treeItemExpanding, idBaum, &Dlg::OnBaumItemExpanding),
            On(treeSelectionChanged, idBaum, &Dlg::OnBaumSelChanged),
            Zu(textChanged, idLaengeVon, idLaengeVon, &K::NeuberechnenWennBereit),
            Zu(textChanged, idLaengeBis, idLaengeBis, &K::NeuberechnenWennBereit),
            Zu(textChanged, idLeistungSoll, idLeistungSoll, &K::NeuberechnenWennBereit),
            Zu(selectionEnded, idHoeheVon, idHoeheVon, &K::NeuberechnenWennBereit),
            Zu(selectionEnded, idHoeheBis, idTiefeBis, &K::NeuberechnenWennBereit),
            Zu(clicked, idLeistungAngabe, idLeistungAngabe, &K::LeistungAngabeGeklickt),
            Zu(clicked, idAlleAnzeigen, idAlleAnzeigen, &K::AlleAnzeigenGeklickt),
            Zu(clicked, idRest, idRest, &K::RestGeklickt),
            Zu(clicked, idProzentAngabe, idProzentAngabe, &K::ProzentGeaendert),
            Zu(textChanged, idAbweichung, idProzent, &K::ProzentGeaendert),
            Zu(textChanged, idRaumtemperatur, idRaumtemperatur, &K::RaumtemperaturGeaendert),
            Zu(focusLost, idRaumtemperatur, idRaumtemperatur, &K::RaumtemperaturVerlassen),
            Zu(selectionEnded, idHeizsysteme, idHeizsysteme, &K::SystemGewaehlt),
            Zu(clicked, idSpeichern, idSpeichern, &K::SystemSpeichern),
            Zu(clicked, idLoeschen, idLoeschen, &K::SystemLoeschen),
            On(clicked, idLayerAktiv, &Dlg::WendeLayerAktivAn),
            On(editChanged, idLayer, &Dlg::OnLayerGetippt),
            On(selectionEnded, idLayer, &Dlg::OnLayerGewaehlt),
            On(clicked, idFarbe, &Dlg::OnLayerFarbe),
            On(clicked, idLayerDialog, &Dlg::OnLayerDialog),
            On(selectionEnded, idBloecke, &Dlg::OnBlockGewaehlt),
            On(clicked, idVentile, &Dlg::OnVentile),
            On(clicked, idAbstaende, &Dlg::OnAbstaende),
        });
    return map;
}

/// Texts stand in the order of their ids, since change events arrive in the order of the exchange.
void CHKAuswahlVdi3805Dlg::DoDataExchange(CDataExchange* pDX)
{
    CResizingDialog::DoDataExchange(pDX);
    DDX_Control(pDX, idBaum, m_baum);
    for (const int id : kListen) {
        DDX_Control(pDX, id, m_listen[id]);
    }
    CAuswahlKriterien& k = m_kriterien;
    DDX_Check(pDX, idLayerAktiv, k.m_bLayerAktiv);
    DDX_Check(pDX, idLeistungAngabe, k.m_bLeistungAngabe);
    DDX_Check(pDX, idAlleAnzeigen, k.m_bAlleAnzeigen);
    DDX_Check(pDX, idRest, k.m_bRest);
    DDX_Check(pDX, idProzentAngabe, k.m_bProzent);
    DDX_CBIndex(pDX, idHeizsysteme, k.m_nHeizsystem);
    DDX_CBIndex(pDX, idHoeheVon, k.m_nHoeheVon);
    DDX_CBIndex(pDX, idHoeheBis, k.m_nHoeheBis);
    DDX_CBIndex(pDX, idTiefeVon, k.m_nTiefeVon);
    DDX_CBIndex(pDX, idTiefeBis, k.m_nTiefeBis);
    DDX_Text(pDX, idLayer, k.m_strLayerEingabe);
    DDX_Text(pDX, idSystemName, k.m_strSystemName);
    DDX_Zahl(pDX, idVorlauf, k.m_Vorlauf);
    DDX_Zahl(pDX, idRuecklauf, k.m_Ruecklauf);
    DDX_Text(pDX, idLaengeVon, k.m_strLaengeVon);
    DDX_Text(pDX, idLaengeBis, k.m_strLaengeBis);
    DDX_Text(pDX, idLeistungSoll, k.m_strLeistungSoll);
    DDX_Text(pDX, idLeistungIst, k.m_strLeistungIst);
    DDX_Zahl(pDX, idRaumBedarf, k.m_RaumBedarf);
    DDX_Text(pDX, idAbweichung, k.m_strAbweichung);
    DDX_Zahl(pDX, idProzent, k.m_Prozent);
    DDX_Text(pDX, idExponent, k.m_strExponent);
    DDX_Text(pDX, idRaum, k.m_strRaum);
    DDX_Text(pDX, idRaumtemperatur, k.m_strRaumtemperatur);
    DDX_Text(pDX, idPfad, m_strPfad);
}

bool CHKAuswahlVdi3805Dlg::OnInitDialog()
{
    CResizingDialog::OnInitDialog();
    LadeIcons();
    ResetUnits();
    m_baum.Fuelle();
    m_strPfad = GetHKDir(false);
    m_kriterien.LeistungFilterAus();
    GitterAnlegen();
    VorschauAnlegen();
    FuelleZeichnungsListen();
    SetzeAnker();
    PlatzierungLaden(*this, kPlatzierung, &m_nTransparenz, false);
    m_kriterien.UebergabeLesen();
    m_baum.WaehleVorgabe();
    SetExplorerTheme(m_baum);
    m_kriterien.LayerLesen(m_listen.at(idLayer));
    m_kriterien.FelderAnzeigen();
    WendeLayerAktivAn();
    if (kOhneBlock) {
        ZeigeOhneBlock();
    }
    UpdateData(false);
    SetTimer(kTimerBesteZeile, kTimerMillisekunden);
    m_kriterien.m_bInitialisiert = true;
    return true;
}

void CHKAuswahlVdi3805Dlg::LadeIcons()
{
    const CImageLoader lader;
    const auto setze = [&](int id, int nummer) {
        CButton(GetDlgItem(id)).SetIcon(lader.LoadLumoIcon(nummer, kIconKante, kIconKante));
    };
    setze(idLoeschen, iconLoeschen);
    setze(idSpeichern, iconSpeichern);
}

void CHKAuswahlVdi3805Dlg::GitterAnlegen()
{
    m_pGrid = std::make_unique<CHKAuswahlVdi3805Grid>(*this);
    m_pGrid->AttachTo(GetDlgItem(idGitter),
                      [this](const std::function<void()>& work) { Guard(work); });
}

void CHKAuswahlVdi3805Dlg::VorschauAnlegen()
{
    if (!kOhneBlock) {
        m_vorschauBild.Create(styleNone, GetDlgItem(idVorschau).GetPlace(), *this);
    }
}

void CHKAuswahlVdi3805Dlg::FuelleZeichnungsListen()
{
    if (m_pDrawer == nullptr) {
        return;
    }
    CStringArray namen;
    m_pDrawer->GetLayerNames(namen, kZeichenLayer);
    m_listen.at(idLayer).FillWith(namen);
    namen.RemoveAll();
    m_pDrawer->GetBlockNames(BlockOrdner(), namen, kAlleBloecke);
    CComboListe& bloecke = m_listen.at(idBloecke);
    bloecke.FillWith(namen);
    CString letzter;
    bloecke.SetCurSel(lmGetHKBlock(letzter) ? SucheAnfang(bloecke, letzter) : 0);
}

void CHKAuswahlVdi3805Dlg::SetzeAnker()
{
    GroesseErlauben(false, true);
    AnkerSetzen(idGitter, ankerStrecken, ankerStrecken, false);
    AnkerSetzen(idBaum, ankerFest, ankerStrecken, false);
    AnkerSetzen(kIdOk, ankerMitte, ankerMitgehen, false);
    AnkerSetzen(kIdCancel, ankerMitte, ankerMitgehen, false);
    AnkerSetzen(kBannerId, ankerFest, ankerStrecken, false);
}

void CHKAuswahlVdi3805Dlg::ZeigeOhneBlock()
{
    for (const int id : {idBlockTitel, idBloecke, idVorschau}) {
        GetDlgItem(id).ShowWindow(false);
    }
    bool automatisch = false;
    lmGetAutoLayerManagement(automatisch, false);
    if (!automatisch) {
        GetDlgItem(idLayerAktiv).ShowWindow(false);
        GetDlgItem(idFarbe).ShowWindow(false);
        m_kriterien.m_bLayerAktiv = 1;
        GetDlgItem(idLayerDialog).ShowWindow(true);
    }
}

void CHKAuswahlVdi3805Dlg::EnableControl(int id, bool enable)
{
    GetDlgItem(id).EnableWindow(enable);
}

void CHKAuswahlVdi3805Dlg::ZeilenAufbauen(bool bFiltern)
{
    m_pGrid->ZeilenAufbauen(bFiltern);
}

void CHKAuswahlVdi3805Dlg::OnTimer(int id)
{
    if (id == kTimerBesteZeile) {
        m_pGrid->BesteZeileWaehlen();
        KillTimer(kTimerBesteZeile);
    }
    CResizingDialog::OnTimer(id);
}

void CHKAuswahlVdi3805Dlg::OnBaumItemExpanding(CNotify& notify)
{
    m_baum.LeseHersteller(notify.item);
}

void CHKAuswahlVdi3805Dlg::OnBaumSelChanged(CNotify& notify)
{
    if (m_baum.UebernehmeProdukt(notify.item)) {
        m_kriterien.NeuesProdukt();
    } else if (notify.item != nullptr) {
        m_pGrid->ErgebnisEntfernen();
    }
}

void CHKAuswahlVdi3805Dlg::WendeLayerAktivAn()
{
    UpdateData(true);
    const bool aktiv = m_kriterien.m_bLayerAktiv != 0;
    EnableControl(idLayer, aktiv);
    EnableControl(idFarbe, aktiv);
    if (aktiv) {
        ZeichneFarbe();
    }
}

void CHKAuswahlVdi3805Dlg::OnLayerGetippt()
{
    UpdateData(true);
    m_kriterien.m_strLayer = m_kriterien.m_strLayerEingabe;
}

void CHKAuswahlVdi3805Dlg::OnLayerGewaehlt()
{
    const CComboListe& layer = m_listen.at(idLayer);
    if (layer.GetCurSel() < 0 || m_pDrawer == nullptr) {
        return;
    }
    m_kriterien.m_strLayer = layer.GetItemText(layer.GetCurSel());
    m_kriterien.m_nLayerFarbe = m_pDrawer->GetLayerColor(m_kriterien.m_strLayer);
    // Showing the fields writes this text to the list, which would go back to the former layer.
    m_kriterien.m_strLayerEingabe = m_kriterien.m_strLayer;
    ZeichneFarbe();
}

void CHKAuswahlVdi3805Dlg::OnLayerFarbe()
{
    int farbe = m_kriterien.m_nLayerFarbe;
    if (GetColorDlg(farbe)) {
        m_kriterien.m_nLayerFarbe = farbe;
    }
    ZeichneFarbe();
}

void CHKAuswahlVdi3805Dlg::OnLayerDialog()
{
    CString layer = m_kriterien.m_strLayer;
    int farbe = m_kriterien.m_nLayerFarbe;
    if (ShowBigLayerDlg(m_pDrawer, layer, farbe)) {
        m_kriterien.m_strLayer = layer;
        UpdateData(false);
    }
}

/// The block is kept at once, as drawings go on with it whatever becomes of this dialog.
void CHKAuswahlVdi3805Dlg::OnBlockGewaehlt()
{
    const CComboListe& bloecke = m_listen.at(idBloecke);
    const int index = bloecke.GetCurSel();
    m_vorschau = {};
    if (index >= 0) {
        const CString block = bloecke.GetItemText(index);
        LadeVorschau(block);
        if (!block.empty()) {
            lmSetHKBlock(block);
        }
    }
    // An empty picture and never null, which shows that a file is missing: a block without a
    // preview is no fault.
    m_vorschauBild.SetBitmap(&m_vorschau);
}

void CHKAuswahlVdi3805Dlg::LadeVorschau(const CString& block)
{
    CBitmap bild;
    if (m_pDrawer != nullptr && m_pDrawer->GetBlockPreview(BlockOrdner(), block, bild,
                                                           kGroesseDesHosts, kGroesseDesHosts)) {
        m_vorschau = std::move(bild);
    }
}

void CHKAuswahlVdi3805Dlg::ZeichneFarbe()
{
    FarbfeldZeichnen(GetDlgItem(idFarbe), GetRGBFromColor(m_kriterien.m_nLayerFarbe));
}

void CHKAuswahlVdi3805Dlg::OnVentile()
{
    VDI6030START start = LeseStartwerte();
    bool gruppenWaehlbar = false;
    bool ventile = true;
    bool typ = true;
    bool fanCoil = false;
    if (ZeigeAnschlussDialog(start.Anschluss, start.VentilVorlauf, start.VentilRuecklauf,
                             gruppenWaehlbar, ventile, typ, fanCoil, nullptr, m_pDrawer)) {
        WriteDefFile_VDI6030START(&start, false);
    }
}

void CHKAuswahlVdi3805Dlg::OnAbstaende()
{
    CWandAbDlg().DoModal();
}

void CHKAuswahlVdi3805Dlg::OnPaint()
{
    CResizingDialog::OnPaint();
    ZeichneFarbe();
}

void CHKAuswahlVdi3805Dlg::OnSysCommand(unsigned id)
{
    if (!AendereTransparenz(id, m_nTransparenz)) {
        CResizingDialog::OnSysCommand(id);
    }
}

void CHKAuswahlVdi3805Dlg::OnOK()
{
    PlatzierungSpeichern(*this, kPlatzierung, &m_nTransparenz);
    m_kriterien.Uebernehmen();
    CResizingDialog::OnOK();
}

void CHKAuswahlVdi3805Dlg::OnDestroy()
{
    m_pGrid.reset();
    CResizingDialog::OnDestroy();
}
