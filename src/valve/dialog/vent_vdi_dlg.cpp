#include "valve/dialog/vent_vdi_dlg.h"

#include "dialogs/list_tree.h"
#include "dialogs/platzierung.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "platform/folder.h"
#include "platform/format.h"
#include "uikit/column_label.h"
#include "valve/dialog/vent_vdi_template.h"
#include "valve/ventil_bewertung.h"
#include "valve/ventil_texte.h"

namespace {

constexpr wchar_t kPlatzierung[] = L"VDI3805_VENTVDI";
constexpr int kIconKante = 16;

/// Places in the image list.
enum Bild
{
    bildHauptgruppe,
    bildGruppe,
    bildArtikel,
    bildFirma
};

/// What the items of the tree carry.
enum Ebene
{
    ebeneHauptgruppe = 1,
    ebeneGruppe,
    ebeneArtikel
};

} // namespace

CVentVdiDlg::CVentVdiDlg() : CResizingDialog(VentVdiTemplate()) {}

CVentVdiDlg::~CVentVdiDlg() = default;

void CVentVdiDlg::SetzeVorgabe(const CString& ventilNr, const CString& hersteller)
{
    VorgabeVentil = ventilNr;
    VorgabeHersteller = hersteller;
}

void CVentVdiDlg::HoleErgebnis(VDI3805_VENTIL_KV& ventil) const
{
    ventil = Ergebnis;
}

const CMessageMap& CVentVdiDlg::GetMessageMap() const
{
    static const CMessageMap map(
        &CResizingDialog::GetMessageMap(),
        {
            On(ControlEvent::treeSelectionChanged, idVentilBaum, &CVentVdiDlg::OnBaumSelChanged),
            On(ControlEvent::selectionEnded, idHersteller, &CVentVdiDlg::WechsleHersteller),
        });
    return map;
}

void CVentVdiDlg::DoDataExchange(CDataExchange* pDX)
{
    CResizingDialog::DoDataExchange(pDX);
    DDX_Control(pDX, idHersteller, m_hersteller);
    DDX_Control(pDX, idKvListe, m_kvListe);
    DDX_Control(pDX, idVentilBaum, m_baum);
    DDX_Text(pDX, idAntrieb, TextAntrieb);
    DDX_Text(pDX, idBauform, TextBauform);
    DDX_Text(pDX, idWerkstoff, TextWerkstoff);
    DDX_Text(pDX, idNennweite, TextDN);
    DDX_Text(pDX, idDruck, TextDruck);
    DDX_Text(pDX, idKvs, TextKvs);
    DDX_Check(pDX, idEinstellbar, CheckEinstellbar);
    DDX_Text(pDX, idZeile, AnzeigeZeile);
}

bool CVentVdiDlg::OnInitDialog()
{
    CResizingDialog::OnInitDialog();
    UpdateData(false);
    SetzeListenFont();
    LadeIcons();
    m_baum.SetImageList(m_icons);
    DateiPfad = GetVEDir(false);
    FuelleHersteller();
    // A damaged file of the maker shown first must not cost the dialog its sizing and its place.
    Guard([this] { WechsleHersteller(); });
    SetzeAnker();
    PlatzierungLaden(*this, kPlatzierung, &m_nTransparenz, false);
    return true;
}

void CVentVdiDlg::SetzeListenFont()
{
    ListenFont = {L"Courier", 15, 100};
    ListenFont.fixedPitch = true;
    m_kvListe.SetFont(ListenFont);
}

void CVentVdiDlg::LadeIcons()
{
    const CImageLoader lader;
    m_icons = {};
    for (const int nummer : {iconHersteller, iconGruppe, iconArtikel, iconFirma}) {
        m_icons.Add(lader.LoadLumoIcon(nummer, kIconKante, kIconKante));
    }
}

void CVentVdiDlg::SetzeAnker()
{
    GroesseErlauben(true, true);
    AnkerSetzen(kIdOk, ankerMitgehen, ankerMitgehen, false);
    AnkerSetzen(kIdCancel, ankerMitgehen, ankerMitgehen, false);
    AnkerSetzen(idVentilBaum, ankerStrecken, ankerStrecken, false);
    // Ids of controls that move alike follow each other.
    const auto gehtMit = [this](int erste, int letzte) {
        for (int id = erste; id <= letzte; ++id) {
            AnkerSetzen(id, ankerMitgehen, ankerFest, false);
        }
    };
    gehtMit(idNormDatumTitel, idKvKopf);
    gehtMit(idHerstellerName, idWerkstoff);
    gehtMit(idNennweite, idNennweite);
    gehtMit(idDruck, idEinstellbar);
    AnkerSetzen(idHersteller, ankerStrecken, ankerFest, false);
    AnkerSetzen(idZeile, ankerMitgehen, ankerFest, false);
    AnkerSetzen(kBannerId, ankerFest, ankerStrecken, false);
}

void CVentVdiDlg::FuelleHersteller()
{
    m_hersteller.SetImageList(m_icons);
    for (const CString& ordner : ListFolders(DateiPfad)) {
        m_hersteller.AddItem(FileTitle(ordner), bildFirma, bildHauptgruppe);
    }
    if (VorgabeHersteller.empty()) {
        m_hersteller.SetCurSel(0);
    } else {
        WaehleHersteller(VorgabeHersteller);
    }
}

void CVentVdiDlg::WaehleHersteller(const CString& text)
{
    // Longest name of a folder on the systems that the catalogues come from.
    constexpr std::size_t kLaengster = 260;
    for (int i = 0; i < m_hersteller.GetCount(); ++i) {
        if (m_hersteller.GetItemText(i).substr(0, kLaengster) == text.substr(0, kLaengster)) {
            m_hersteller.SetCurSel(i);
            return;
        }
    }
}

void CVentVdiDlg::WechsleHersteller()
{
    const int gewaehlt = m_hersteller.GetCurSel();
    const CString hersteller = m_hersteller.GetItemText(gewaehlt >= 0 ? gewaehlt : 0);
    m_baum.DeleteAllItems();
    SetzeStelle({});
    if (m_hersteller.GetCount() > 0 && LadeHersteller(hersteller)) {
        ZeigeKopf();
        FuelleBaum();
    }
}

void CVentVdiDlg::ZeigeKopf()
{
    SetzeText(idAusfuehrung, AusfuehrungDatum);
    SetzeText(idHerstellerName, HerstellerName);
    SetzeText(idNormDatum, NormDatum);
}

void CVentVdiDlg::FuelleBaum()
{
    SetExplorerTheme(m_baum);
    HTREEITEM vorgabe = nullptr;
    for (const auto* haupt = ErsteHauptgruppe; haupt != nullptr; haupt = haupt->Next) {
        HTREEITEM item = m_baum.InsertItem(haupt->Name, bildHauptgruppe, bildHauptgruppe, nullptr);
        m_baum.SetItemData(item, ebeneHauptgruppe);
        if (HTREEITEM gefunden = FuelleGruppen(*haupt, item)) {
            vorgabe = gefunden;
        }
    }
    m_baum.SelectItem(vorgabe);
}

/// Returns the item of the valve to open on, the last one if several have its key; null if there is
/// none.
HTREEITEM CVentVdiDlg::FuelleGruppen(const VENT_VDI3805_HAUPTGRUPPE& haupt, HTREEITEM oben)
{
    HTREEITEM vorgabe = nullptr;
    for (const auto* gruppe = haupt.Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
        HTREEITEM mitte = m_baum.InsertItem(gruppe->Name, bildGruppe, bildGruppe, oben);
        m_baum.SetItemData(mitte, ebeneGruppe);
        for (const VENT_VDI3805_ARTIKEL* artikel = gruppe->Artikel; artikel != nullptr;
             artikel = artikel->Next) {
            HTREEITEM item =
                m_baum.InsertItem(artikel->Bezeichnung, bildArtikel, bildArtikel, mitte);
            m_baum.SetItemData(item, ebeneArtikel);
            if (!VorgabeVentil.empty() && artikel->TgaNr == VorgabeVentil) {
                vorgabe = item;
            }
        }
    }
    return vorgabe;
}

void CVentVdiDlg::OnBaumSelChanged(CNotify& notify)
{
    if (notify.item == nullptr) {
        return;
    }
    GetDlgItem(kIdOk).EnableWindow(false);
    const CString text = m_baum.GetItemText(notify.item);
    switch (m_baum.GetItemData(notify.item)) {
    case ebeneHauptgruppe:
        SelHauptgruppe = SucheHauptgruppe(ErsteHauptgruppe, text).Hauptgruppe;
        break;
    case ebeneGruppe: {
        const VentilStelle stelle = SucheGruppe(ErsteHauptgruppe, text);
        SelGruppe = stelle.Gruppe;
        SelHauptgruppe = stelle.Hauptgruppe;
        break;
    }
    case ebeneArtikel:
        WaehleArtikel(notify.item);
        break;
    default:
        break;
    }
}

/// The article is looked up by its name: if several share it, the data shown are those of the
/// first, while the names of the groups are those of the item clicked.
void CVentVdiDlg::WaehleArtikel(HTREEITEM item)
{
    const CString text = m_baum.GetItemText(item);
    Ergebnis.Bezeichnung = text;
    SuchePfad(item);
    SetzeStelle(SucheArtikel(ErsteHauptgruppe, text));
    if (SelArtikel == nullptr) {
        // A name with characters that cannot be shown reads differently from the tree than it
        // stands in the file.
        return;
    }
    ZeigeVentil(*SelArtikel);
    GetDlgItem(kIdOk).EnableWindow(true);
}

/// The group right above the article goes to Hauptgruppe and the main group to Gruppe, the other
/// way round than in a fetched valve: hosts tell a picked valve by that.
void CVentVdiDlg::SuchePfad(HTREEITEM item)
{
    HTREEITEM gruppe = m_baum.GetParentItem(item);
    Ergebnis.Hauptgruppe = m_baum.GetItemText(gruppe);
    Ergebnis.Gruppe = m_baum.GetItemText(m_baum.GetParentItem(gruppe));
}

void CVentVdiDlg::SetzeStelle(const VentilStelle& stelle)
{
    SelHauptgruppe = stelle.Hauptgruppe;
    SelGruppe = stelle.Gruppe;
    SelArtikel = stelle.Artikel;
}

void CVentVdiDlg::ZeigeVentil(const VENT_VDI3805_ARTIKEL& artikel)
{
    SetzeText(idBestellNr, artikel.BestellNr);
    SetzeText(idDatanorm, artikel.Datanorm);
    SetzeText(idTgaNr, artikel.TgaNr);
    AnzeigeZeile = artikel.ZeilenNr;
    UpdateData(false);

    Akt700 = SucheDatensatz(*SelGruppe, artikel);
    if (Akt700 == nullptr) {
        return;
    }
    VDI3805_VENTIL_KV bewertet;
    Bewerte(artikel, *Akt700, bewertet);
    Ventil = bewertet;
    FuelleKvListe(artikel);
    ZeigeTexte(artikel);
    ZeigeVentilArt();
    TextDN = FormatFixed(Ventil.DN, 0);
    TextDruck = FormatFixed(double(Ventil.DruckMax), 0);
    TextKvs = FormatFixed(double(Ventil.Kvs), 3);
    CheckEinstellbar = Ventil.Einstellbar;
    Ergebnis.Einstellbar = Ventil.Einstellbar != 0 ? 1 : 0;
    Ergebnis.Hersteller = m_hersteller.GetItemText(m_hersteller.GetCurSel());
    Ergebnis.VentilNr = artikel.TgaNr;
    Ergebnis.DN = Ventil.DN;
    UpdateData(false);
}

void CVentVdiDlg::FuelleKvListe(const VENT_VDI3805_ARTIKEL& artikel)
{
    const bool bypass = HatBypass(artikel);
    m_kvListe.ResetContent();
    SetzeText(idKvKopf, KvKopfzeile(bypass));
    CColumnLabel(GetDlgItem(idKvKopf)).AlignTo(m_kvListe, ListenFont, KvSpaltenEnden(bypass));
    const CStringArray zeilen = KvZeilen(Ventil, bypass);
    for (int i = 0; i < zeilen.GetSize(); ++i) {
        m_kvListe.AddString(zeilen[i]);
    }
    m_kvListe.SetCurSel(0);
}

void CVentVdiDlg::ZeigeTexte(const VENT_VDI3805_ARTIKEL& artikel)
{
    const VentilTexte texte = SucheTexte(*SelGruppe, artikel);
    TextAntrieb = texte.Antrieb;
    TextBauform = texte.Bauform;
    TextWerkstoff = texte.Werkstoff;
    UpdateData(false);
}

void CVentVdiDlg::ZeigeVentilArt()
{
    SetzeText(idVentilArt, VentilArtText(Ventil.VentilArt));
}

void CVentVdiDlg::SetzeText(int id, const CString& text)
{
    GetDlgItem(id).SetWindowText(text);
}

void CVentVdiDlg::OnOK()
{
    PlatzierungSpeichern(*this, kPlatzierung, &m_nTransparenz);
    CResizingDialog::OnOK();
}

void CVentVdiDlg::OnSysCommand(unsigned id)
{
    if (!AendereTransparenz(id, m_nTransparenz)) {
        CResizingDialog::OnSysCommand(id);
    }
}
