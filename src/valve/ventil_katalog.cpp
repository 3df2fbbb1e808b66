#include "valve/ventil_katalog.h"

#include "common/cached_lines.h"
#include "common/missing_fields.h"
#include "common/text_file.h"
#include "host/host_prefs.h"
#include "platform/array.h"
#include "platform/file.h"
#include "platform/file_fault.h"
#include "platform/file_limits.h"
#include "platform/folder_name.h"
#include "platform/format.h"
#include "platform/message.h"
#include "platform/number_scan.h"
#include "platform/path.h"
#include "valve/ventil_bewertung.h"

#include <utility>

bool PruefeVentilzeilen = false;

namespace {

constexpr wchar_t kSeparator = L';';
constexpr wchar_t kDateiName[] = L"ha.tga";

/// Stands for a fourth head field that the line does not have.
constexpr wchar_t kNoKopf4[] = L"  ";

/// Frees a list from its head on, one node after the other.
template <class Node>
void FreeList(Node*& head)
{
    while (head != nullptr) {
        delete std::exchange(head, head->Next);
    }
}

void FreeGruppe(VENT_VDI3805_GRUPPE* gruppe)
{
    FreeList(gruppe->Daten);
    FreeList(gruppe->Zusaetze);
    FreeList(gruppe->Artikel);
    FreeList(gruppe->Antriebe);
    FreeList(gruppe->Bauformen);
    FreeList(gruppe->Werkstoffe);
    delete gruppe;
}

/// Puts a new node at the end of a list whose last node is `last`; of an empty list it becomes the
/// head.
template <class Node>
Node* Append(Node*& head, Node*& last)
{
    auto* const node = new Node;
    if (head == nullptr) {
        head = node;
    } else {
        node->Prev = last;
        last->Next = node;
    }
    last = node;
    return node;
}

wchar_t KorrigiertesZeichen(wchar_t c)
{
    switch (c) {
    case 0x81:
        return L'ü';
    case 0x84:
    case 0x201E:
        return L'ä';
    case 0x8E:
        return L'Ä';
    case 0x94:
    case 0x201D:
        return L'ö';
    case 0x99:
        return L'Ö';
    case 0x9A:
        return L'Ü';
    case 0xE1:
        return L'ß';
    default:
        return c;
    }
}

void Melde(bool melden, const CString& text)
{
    if (melden) {
        ShowMessage({L"", text, MessageIcon::warning});
    }
}

} // namespace

struct CVentVdiKatalog::Satz
{
    CString& zeile;
    int zeilenNr;
    const CString& dateiPfad;
    const std::vector<std::wstring_view>& felder;

    std::size_t Anzahl() const { return felder.size(); }

    /// A field that the line must have.
    std::wstring_view Feld(std::size_t index) const
    {
        if (index >= felder.size()) {
            throw CInvalidArgException(FormatFileFault(
                {zeilenNr, DescribeMissingFields(felder[0], felder.size(), index + 1),
                 TextFromPath(ResolvePath(dateiPfad))}));
        }
        return felder[index];
    }

    CString Text(std::size_t index) const { return CString(Feld(index)); }
    int Zahl(std::size_t index) const { return _wtoi(Feld(index)); }

    /// Hands the line over to its node; the fields are gone afterwards.
    template <class Node>
    void LegeAb(Node& node)
    {
        node.ZeilenNr = zeilenNr;
        node.Zeile = std::move(zeile);
    }
};

CString VentilDateiPfad(const CString& verzeichnis, const CString& hersteller)
{
    const bool endsInSeparator = hersteller.ends_with(L'\\');
    const CString name = hersteller.substr(0, hersteller.size() - (endsInSeparator ? 1 : 0));
    if (!name.empty() && !IsFolderName(name)) {
        return {};
    }
    return JoinPath(JoinPath(verzeichnis, hersteller), kDateiName);
}

CVentVdiKatalog::CVentVdiKatalog() : DateiPfad(GetVEDir(false)) {}

CVentVdiKatalog::~CVentVdiKatalog()
{
    Leeren();
}

bool CVentVdiKatalog::LadeHersteller(const CString& hersteller)
{
    DateiPfad = VentilDateiPfad(GetVEDir(false), hersteller);
    if (LetzterPfad != DateiPfad) {
        LetzterPfad = DateiPfad;
    }
    return HatNeuenKopf() ? LeseNeuesFormat() : LeseDatei();
}

bool CVentVdiKatalog::HatNeuenKopf() const
{
    CString line;
    if (!ReadFirstLine(DateiPfad, line, kLargestValveFile)) {
        return false;
    }
    std::vector<std::wstring_view> fields;
    SplitFields(fields, line, kSeparator);
    return !fields.empty() && fields[0] == L"000";
}

bool CVentVdiKatalog::LeseNeuesFormat()
{
    return false;
}

bool CVentVdiKatalog::LeseDatei()
{
    Leeren();
    CStringArray lines;
    if (!ReadCachedLines(DateiPfad, lines, kLargestValveFile)) {
        return false;
    }
    int zeilenNr = 0;
    for (CString& zeile : lines) {
        ++zeilenNr;
        if (PruefeVentilzeilen && !PruefeSatzende(zeile, zeilenNr, false)) {
            continue;
        }
        if (!NimmZeile(zeile, zeilenNr)) {
            Leeren();
            return false;
        }
        // What no node has taken over makes room for the nodes to come.
        CString().swap(zeile);
    }
    return true;
}

bool CVentVdiKatalog::SucheVentil(const CString& hersteller, const CString& ventilNr,
                                  VDI3805_VENTIL_KV& ventil)
{
    if (ventilNr.size() < kShortestVentilNr || !LadeHersteller(hersteller)) {
        return false;
    }
    for (const auto* haupt = ErsteHauptgruppe; haupt != nullptr; haupt = haupt->Next) {
        for (const auto* gruppe = haupt->Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
            const VENT_VDI3805_ARTIKEL* artikel = gruppe->Artikel;
            while (artikel != nullptr && artikel->TgaNr != ventilNr) {
                artikel = artikel->Next;
            }
            if (artikel == nullptr) {
                continue;
            }
            const VENT_VDI3805_DATEN* const daten = SucheDatensatz(*gruppe, *artikel);
            if (daten == nullptr) {
                return false;
            }
            Bewerte(*artikel, *daten, ventil);
            ventil.Hauptgruppe = haupt->Name;
            ventil.Gruppe = gruppe->Name;
            ventil.Bezeichnung = artikel->BestellNr;
            ventil.Hersteller = hersteller;
            ventil.VentilNr = ventilNr;
            return true;
        }
    }
    return false;
}

void CVentVdiKatalog::Bewerte(const VENT_VDI3805_ARTIKEL& artikel, const VENT_VDI3805_DATEN& daten,
                              VDI3805_VENTIL_KV& ventil) const
{
    try {
        BewerteVentil(artikel, daten, ventil);
    } catch (const CInvalidArgException& fehler) {
        throw CInvalidArgException(TextFromPath(ResolvePath(DateiPfad)) + L": " +
                                   fehler.GetErrorMessage());
    }
}

void CVentVdiKatalog::Leeren()
{
    while (ErsteHauptgruppe != nullptr) {
        while (ErsteHauptgruppe->Gruppen != nullptr) {
            VENT_VDI3805_GRUPPE* const gruppe = ErsteHauptgruppe->Gruppen;
            ErsteHauptgruppe->Gruppen = gruppe->Next;
            FreeGruppe(gruppe);
        }
        delete std::exchange(ErsteHauptgruppe, ErsteHauptgruppe->Next);
    }
    AnzahlHauptgruppen = 0;
    AktHauptgruppe = nullptr;
    AktGruppe = nullptr;
    AktArtikel = nullptr;
    AktDaten = Akt700 = nullptr;
    AktZusatz = nullptr;
    AktAntrieb = AktBauform = AktWerkstoff = nullptr;
}

/// False if the line is a record that has no parent to stand under.
bool CVentVdiKatalog::NimmZeile(CString& zeile, int zeilenNr)
{
    KorrigiereUmlaute(zeile);
    m_felder.clear();
    SplitFields(m_felder, zeile, kSeparator);
    if (m_felder.empty()) {
        return true;
    }
    Satz satz{zeile, zeilenNr, DateiPfad, m_felder};
    return NimmSatz(satz);
}

bool CVentVdiKatalog::NimmSatz(Satz& satz)
{
    const std::wstring_view art = satz.Feld(0);
    if (art == L"010") {
        NimmKopf(satz);
    } else if (art == L"100") {
        NimmHauptgruppe(satz);
    } else if (art == L"110") {
        return NimmGruppe(satz);
    } else if (art == L"700" || art == L"710.01" || art == L"710.02" || art == L"710.03" ||
               art == L"710.04" || art == L"710.05") {
        return NimmDaten(satz);
    } else if (art == L"720.01" || art == L"720.02" || art == L"720.03") {
        return NimmZusatz(satz);
    } else if (art == L"800") {
        return NimmArtikel(satz);
    } else if (art == L"160") {
        return NimmText(satz, &VENT_VDI3805_GRUPPE::Antriebe, AktAntrieb);
    } else if (art == L"200") {
        return NimmText(satz, &VENT_VDI3805_GRUPPE::Bauformen, AktBauform);
    } else if (art == L"400") {
        return NimmText(satz, &VENT_VDI3805_GRUPPE::Werkstoffe, AktWerkstoff);
    }
    return true;
}

void CVentVdiKatalog::NimmKopf(const Satz& satz)
{
    NormDatum = satz.Text(1);
    HerstellerName = satz.Text(2);
    AusfuehrungDatum = satz.Text(3);
    Kopf4 = satz.Anzahl() > 4 ? satz.Text(4) : kNoKopf4;
    // Not emptied first: a second load appends to what the first one left.
    HerstellerKurz += HerstellerName.substr(0, HerstellerName.find_first_of(L"; "));
    HerstellerKurzKopie = HerstellerKurz;
}

void CVentVdiKatalog::NimmHauptgruppe(Satz& satz)
{
    const int nummer = satz.Zahl(1);
    CString name = satz.Text(2);
    VENT_VDI3805_HAUPTGRUPPE* const haupt = Append(ErsteHauptgruppe, AktHauptgruppe);
    ++AnzahlHauptgruppen;
    haupt->Nummer = nummer;
    haupt->Name = std::move(name);
    satz.LegeAb(*haupt);
}

bool CVentVdiKatalog::NimmGruppe(Satz& satz)
{
    if (AktHauptgruppe == nullptr) {
        return false;
    }
    const int nummer = satz.Zahl(1);
    CString name = satz.Text(2);
    VENT_VDI3805_GRUPPE* const gruppe = Append(AktHauptgruppe->Gruppen, AktGruppe);
    gruppe->Nummer = nummer;
    gruppe->Name = std::move(name);
    satz.LegeAb(*gruppe);
    return true;
}

bool CVentVdiKatalog::NimmDaten(Satz& satz)
{
    if (AktGruppe == nullptr) {
        return false;
    }
    VENT_VDI3805_DATEN* const daten = Append(AktGruppe->Daten, AktDaten);
    const std::size_t artLaenge = satz.Feld(0).size();
    if (satz.Anzahl() > 1) {
        daten->Nummer = satz.Zahl(1);
    }
    satz.LegeAb(*daten);
    daten->Satzart = std::wstring_view(daten->Zeile).substr(0, artLaenge);
    if (daten->Satzart == L"700") {
        Akt700 = daten;
    }
    return true;
}

bool CVentVdiKatalog::NimmZusatz(Satz& satz)
{
    if (satz.Feld(0) == L"720.01") {
        // The value is of no use here, but a line without it is no record of this type.
        satz.Feld(8);
    }
    if (AktGruppe == nullptr || Akt700 == nullptr) {
        return false;
    }
    VENT_VDI3805_ZUSATZ* const zusatz = Append(AktGruppe->Zusaetze, AktZusatz);
    if (Akt700->Zusatz == nullptr) {
        Akt700->Zusatz = zusatz;
    }
    satz.LegeAb(*zusatz);
    return true;
}

bool CVentVdiKatalog::NimmArtikel(const Satz& satz)
{
    if (AktGruppe == nullptr) {
        return false;
    }
    const std::wstring_view tgaNr = satz.Feld(1);
    VENT_VDI3805_ARTIKEL* const artikel = Append(AktGruppe->Artikel, AktArtikel);
    LeseIdent(tgaNr, artikel->Ident);
    artikel->TgaNr = tgaNr;
    CString* const texts[] = {&artikel->BestellNr, &artikel->Datanorm, &artikel->Text4,
                              &artikel->Bezeichnung};
    std::size_t feld = 2;
    for (CString* const text : texts) {
        if (feld < satz.Anzahl()) {
            *text = satz.Feld(feld);
        }
        ++feld;
    }
    artikel->ZeilenNr = satz.zeilenNr;
    return true;
}

bool CVentVdiKatalog::NimmText(Satz& satz, VENT_VDI3805_TEXT* VENT_VDI3805_GRUPPE::*liste,
                               VENT_VDI3805_TEXT*& letzter)
{
    if (AktGruppe == nullptr) {
        return false;
    }
    const int nummer = satz.Zahl(1);
    VENT_VDI3805_TEXT* const text = Append(AktGruppe->*liste, letzter);
    text->Nummer = nummer;
    satz.LegeAb(*text);
    return true;
}

bool PruefeSatzende(const CString& zeile, int zeilenNr, bool melden)
{
    if (zeile.size() < 2) {
        Melde(melden, L"Satz  " + FormatInt(zeilenNr) + L" enthält keine Daten");
        return false;
    }
    if (zeile.ends_with(L";\n")) {
        return true;
    }
    Melde(melden, L"Blank am Satzende von Satz  " + FormatInt(zeilenNr) + L" ");
    return false;
}

void KorrigiereUmlaute(CString& zeile)
{
    for (wchar_t& c : zeile) {
        if (c > 0x80) {
            c = KorrigiertesZeichen(c);
        }
    }
}

void LeseIdent(std::wstring_view text, VentIdent& ident)
{
    constexpr std::size_t kShortestIdent = 16;
    constexpr std::size_t kWideGroup = 15;
    if (text.size() < kShortestIdent) {
        return;
    }
    std::size_t cursor = 0;
    for (std::size_t group = 0; group < ident.size(); ++group) {
        const bool wide = group == kWideGroup;
        if (cursor >= text.size() || text[cursor] == L'?') {
            ident[group] = -1;
        } else {
            ScanShort(text, cursor, wide ? 4 : 2, ident[group]);
        }
        cursor += wide ? 4 : 2;
    }
}
