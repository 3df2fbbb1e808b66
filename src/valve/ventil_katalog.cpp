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

void Melde(bool melden, const CString& text)
{
    if (melden) {
        ShowMessage({CString(), text, MessageIcon::warning});
    }
}

} // namespace

struct CVentVdiKatalog::Satz
{
    CLineText zeile;
    int index;
    VentilSatzart art;
    const CString& dateiPfad;

    /// A field that the line must have.
    CVentilText Feld(std::size_t feld) const
    {
        const auto gefunden = SucheFeld(zeile, feld);
        if (!gefunden) {
            throw CInvalidArgException(FormatFileFault(
                {index + 1, DescribeMissingFields(NameVon(art), ZaehleFelder(zeile), feld + 1),
                 TextFromPath(ResolvePath(dateiPfad))}));
        }
        return CVentilText(*gefunden);
    }

    /// What a node with a name tells; the line must have it.
    struct Benannt
    {
        int nummer;
        CVentilText name;
    };
    Benannt LiesBenannt() const
    {
        const int nummer = _wtoi(CString(Feld(1)));
        return {nummer, Feld(2)};
    }

    template <class Node>
    void LegeAb(Node& node, const Benannt& benannt) const
    {
        node.Nummer = benannt.nummer;
        node.Name = benannt.name;
        node.Zeile = CVentilText(zeile);
        node.ZeilenNr = index + 1;
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
    auto zeilen = ReadCachedLines(DateiPfad, kLargestValveFile);
    if (zeilen == nullptr) {
        return false;
    }
    m_zeilen = CVentilZeilen(std::move(zeilen));
    for (int i = 0; i < m_zeilen.Anzahl(); ++i) {
        const CLineText zeile = m_zeilen.Zeile(i);
        const bool skipped = PruefeVentilzeilen && !PruefeSatzende(zeile.Widen(), i + 1, false);
        const VentilSatzart art = skipped ? VentilSatzart{0} : BestimmeSatzart(zeile);
        m_zeilen.NimmArt(art);
        if (!NimmSatz({zeile, i, art, DateiPfad})) {
            Leeren();
            return false;
        }
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
            delete std::exchange(ErsteHauptgruppe->Gruppen, ErsteHauptgruppe->Gruppen->Next);
        }
        delete std::exchange(ErsteHauptgruppe, ErsteHauptgruppe->Next);
    }
    AnzahlHauptgruppen = 0;
    AktHauptgruppe = nullptr;
    AktGruppe = m_pOhneZusatz = nullptr;
    m_bHatDatensatz = false;
    Akt700 = nullptr;
    m_zeilen = {};
}

/// False if the record has no parent to stand under. The nodes below a group are made when somebody
/// looks at them; what spoils one of them shows here.
bool CVentVdiKatalog::NimmSatz(const Satz& satz)
{
    switch (SatzVon(satz.art)) {
    case VentilSatz::unbekannt:
        return true;
    case VentilSatz::kopf:
        NimmKopf(satz);
        return true;
    case VentilSatz::hauptgruppe:
        NimmHauptgruppe(satz);
        return true;
    case VentilSatz::gruppe:
        return NimmGruppe(satz);
    case VentilSatz::daten:
        return NimmDaten(satz);
    case VentilSatz::zusatz:
        return NimmZusatz(satz);
    default:
        return NimmNummerierten(satz);
    }
}

void CVentVdiKatalog::NimmKopf(const Satz& satz)
{
    NormDatum = satz.Feld(1);
    HerstellerName = satz.Feld(2);
    AusfuehrungDatum = satz.Feld(3);
    Kopf4 = ZaehleFelder(satz.zeile) > 4 ? CString(satz.Feld(4)) : kNoKopf4;
    // Not emptied first: a second load appends to what the first one left.
    HerstellerKurz += HerstellerName.substr(0, HerstellerName.find_first_of(L"; "));
    HerstellerKurzKopie = HerstellerKurz;
}

void CVentVdiKatalog::NimmHauptgruppe(const Satz& satz)
{
    const Satz::Benannt benannt = satz.LiesBenannt();
    satz.LegeAb(*Append(ErsteHauptgruppe, AktHauptgruppe), benannt);
    ++AnzahlHauptgruppen;
}

bool CVentVdiKatalog::NimmGruppe(const Satz& satz)
{
    if (AktHauptgruppe == nullptr) {
        return false;
    }
    const Satz::Benannt benannt = satz.LiesBenannt();
    VENT_VDI3805_GRUPPE* const gruppe = Append(AktHauptgruppe->Gruppen, AktGruppe);
    satz.LegeAb(*gruppe, benannt);
    gruppe->Bereich = {&m_zeilen, satz.index + 1};
    return true;
}

bool CVentVdiKatalog::NimmDaten(const Satz& satz)
{
    if (AktGruppe == nullptr) {
        return false;
    }
    if (NameVon(satz.art) == L"700") {
        m_pOhneZusatz = AktGruppe;
        m_bHatDatensatz = true;
    }
    AktGruppe->Daten.Zaehle();
    return true;
}

bool CVentVdiKatalog::NimmZusatz(const Satz& satz)
{
    if (NameVon(satz.art) == L"720.01") {
        // The value is of no use here, but a line without it is no record of this type.
        satz.Feld(8);
    }
    if (AktGruppe == nullptr || !m_bHatDatensatz) {
        return false;
    }
    if (m_pOhneZusatz != nullptr && m_pOhneZusatz != AktGruppe) {
        m_pOhneZusatz->Bereich.zusatzDanach = AktGruppe;
    }
    m_pOhneZusatz = nullptr;
    AktGruppe->Zusaetze.Zaehle();
    return true;
}

/// An article or a text.
bool CVentVdiKatalog::NimmNummerierten(const Satz& satz)
{
    if (AktGruppe == nullptr) {
        return false;
    }
    satz.Feld(1);
    switch (SatzVon(satz.art)) {
    case VentilSatz::antrieb:
        AktGruppe->Antriebe.Zaehle();
        break;
    case VentilSatz::bauform:
        AktGruppe->Bauformen.Zaehle();
        break;
    case VentilSatz::werkstoff:
        AktGruppe->Werkstoffe.Zaehle();
        break;
    default:
        AktGruppe->Artikel.Zaehle();
    }
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
