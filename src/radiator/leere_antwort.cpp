#include "radiator/leere_antwort.h"

#include "common/diagnosis.h"
#include "common/katalog_pruefung.h"
#include "platform/format.h"
#include "radiator/hk_vdi3805.h"

#include <cmath>
#include <tuple>
#include <vector>

namespace {

/// More names than these are counted, not told.
constexpr int kMostNames = 20;

CString InQuotes(const CString& name)
{
    return L"\"" + name + L"\"";
}

CString WithoutBlanks(const CString& name)
{
    const std::size_t first = name.find_first_not_of(L" \t");
    return first == CString::npos ? CString()
                                  : name.substr(first, name.find_last_not_of(L" \t") - first + 1);
}

/// The names of a list of the catalogue, for somebody who looks for one that is not in it.
template <class Node>
CString NamesIn(const Node* first, const CString& wanted)
{
    CString names;
    CString similar;
    int count = 0;
    for (const Node* node = first; node != nullptr; node = node->pNext) {
        if (EqualNoCase(WithoutBlanks(node->Name), WithoutBlanks(wanted))) {
            similar = node->Name;
        }
        if (++count <= kMostNames) {
            names += (count > 1 ? L", " : L"") + InQuotes(node->Name);
        }
    }
    if (count == 0) {
        return L" Non ce n'è alcuno.";
    }
    if (count > kMostNames) {
        names += L" e altri " + FormatInt(count - kMostNames);
    }
    return (similar.empty()
                ? CString()
                : L" C'è " + InQuotes(similar) + L": contano anche spazi e maiuscole.") +
           L" Ci sono: " + names + L".";
}

CString Measures(double hoehe, double tiefe, double laenge)
{
    return L"altezza " + FormatPlain(hoehe) + L", profondità " + FormatPlain(tiefe) +
           L", lunghezza " + FormatPlain(laenge) + L" mm";
}

CString Describe(const HK_VDI3805_TYP& row, double leistung)
{
    const HK_DATEN_VDI3805& size = row.Daten;
    CString text = InQuotes(row.Name) + L", " + Measures(size.Hoehe, size.Tiefe, size.Laenge);
    if (size.Elemente > 0.0) {
        text += L", elementi " + FormatPlain(size.Elemente);
    }
    if (!std::isnan(leistung)) {
        text += L", " + FormatPlain(leistung) + L" W alle temperature di progetto";
    }
    return text + L", contenuto " + FormatPlain(size.Inhalt) + L" l";
}

/// Counts the rows that a range leaves out, and tells it.
class CRange
{
public:
    CRange(const wchar_t* name, double min, double max) : m_name(name), m_min(min), m_max(max) {}

    void Count(double miss) { m_nOut += miss != 0.0 ? 1 : 0; }

    CString Text() const
    {
        return m_nOut == 0 ? CString()
                           : CString(L" ") + m_name + L" da " + FormatPlain(m_min) + L" a " +
                                 FormatPlain(m_max) + L" mm ne esclude " + FormatInt(m_nOut) + L";";
    }

private:
    const wchar_t* m_name;
    double m_min;
    double m_max;
    int m_nOut = 0;
};

/// The row that comes nearest, first in millimetres and then in watts. One that no range lets in
/// comes behind all others.
class CNearestRow
{
public:
    void Offer(const HK_VDI3805_TYP& row, bool never, double millimetres, double watts,
               double leistung)
    {
        const std::tuple distance(never, millimetres, watts);
        if (m_pRow == nullptr || distance < m_distance) {
            m_pRow = &row;
            m_distance = distance;
            m_leistung = leistung;
        }
    }

    CString Text() const
    {
        return m_pRow == nullptr ? CString()
                                 : L" La riga più vicina è " + Describe(*m_pRow, m_leistung) + L".";
    }

private:
    const HK_VDI3805_TYP* m_pRow = nullptr;
    std::tuple<bool, double, double> m_distance;
    double m_leistung = 0.0;
};

/// Tells which name of the catalogue position is not found, or that the product has no rows; true
/// if one of these is the reason.
bool TellPosition(CHKVdi3805& katalog)
{
    const HK_DATEN_VDI3805_UEBERGABE& daten = katalog.GetDaten();
    if (katalog.GetHersteller() == nullptr) {
        CPtrArray makers;
        katalog.GetHerstellerListe(makers);
        const auto* const first =
            makers.IsEmpty() ? nullptr : static_cast<const HK_VDI3805_HERSTELLER*>(makers[0]);
        TellDiagnosis(HostDiagnosis::unknownMaker, L"Il catalogo non ha il produttore " +
                                                       InQuotes(daten.Hersteller) + L"." +
                                                       NamesIn(first, daten.Hersteller));
        return true;
    }
    if (katalog.GetHersteller()->pArt == nullptr) {
        TellDiagnosis(HostDiagnosis::unreadMaker, L"Il catalogo del produttore " +
                                                      InQuotes(daten.Hersteller) +
                                                      L" non è stato letto, o non contiene nulla.");
        return true;
    }
    if (katalog.GetArt() == nullptr) {
        TellDiagnosis(HostDiagnosis::unknownKind,
                      L"Il produttore " + InQuotes(daten.Hersteller) + L" non ha la categoria " +
                          InQuotes(daten.Art) + L"." +
                          NamesIn(katalog.GetHersteller()->pArt, daten.Art));
        return true;
    }
    if (katalog.GetProdukt() == nullptr) {
        TellDiagnosis(HostDiagnosis::unknownProduct,
                      L"La categoria " + InQuotes(daten.Art) + L" del produttore " +
                          InQuotes(daten.Hersteller) + L" non ha il prodotto " +
                          InQuotes(daten.Produkt) + L"." +
                          NamesIn(katalog.GetArt()->pProdukt, daten.Produkt));
        return true;
    }
    if (katalog.GetProdukt()->pTyp == nullptr) {
        TellDiagnosis(HostDiagnosis::noRows,
                      L"Il prodotto " + InQuotes(daten.Produkt) + L" non ha righe.");
        return true;
    }
    return false;
}

double Watts(double leistung, const HK_DATEN_VDI3805_UEBERGABE& daten)
{
    const double distance = std::fabs(leistung - daten.Leistung);
    return std::isnan(distance) ? HUGE_VAL : distance;
}

/// A host's catalogue may be the reason, which nobody would look for there.
CString FaultsOf(const HK_VDI3805_PRODUKT& produkt)
{
    const std::vector<CKatalogMangel> maengel = PruefeProdukt(produkt);
    if (maengel.empty()) {
        return {};
    }
    const CKatalogMangel& first = maengel.front();
    return L" Il prodotto ha inoltre " + FormatInt(static_cast<long long>(maengel.size())) +
           (maengel.size() == 1 ? L" difetto" : L" difetti") + L" di catalogo; il primo" +
           (first.nRow < 0 ? CString() : L", alla riga " + FormatInt(first.nRow + 1)) + L": " +
           first.strText + L".";
}

void TellNoRowInRange(const CHKVdi3805& katalog)
{
    const HK_DATEN_VDI3805_UEBERGABE& daten = katalog.GetDaten();
    const double toleranz = katalog.GetHoehenToleranz();
    CRange hoehe(L"l'altezza", daten.HoeheMin - toleranz, daten.HoeheMax + toleranz);
    CRange tiefe(L"la profondità", daten.TiefeMin, daten.TiefeMax);
    CRange laenge(L"la lunghezza", daten.LaengeMin, daten.LaengeMax);
    int rows = 0;
    int singles = 0;
    CNearestRow nearest;
    const HK_VDI3805_TYP* row = katalog.GetProdukt()->pTyp;
    for (; row != nullptr; row = row->pNext) {
        const CHKVdi3805::CVerfehlung miss = katalog.Verfehlung(*row);
        hoehe.Count(miss.hoehe);
        tiefe.Count(miss.tiefe);
        laenge.Count(miss.laenge);
        singles += miss.bAusgang ? 1 : 0;
        ++rows;
        nearest.Offer(*row, miss.bAusgang, miss.hoehe + miss.tiefe + miss.laenge,
                      Watts(miss.leistung, daten), miss.leistung);
    }
    CString text = L"Nessuna delle " + FormatInt(rows) + L" righe del prodotto " +
                   InQuotes(daten.Produkt) + L" rientra nei limiti:" + hoehe.Text() + tiefe.Text() +
                   laenge.Text();
    if (singles > 0) {
        text +=
            L" un elemento solo non è un corpo scaldante e ne esclude " + FormatInt(singles) + L";";
    }
    text.back() = L'.';
    TellDiagnosis(HostDiagnosis::noRowInRange,
                  text + nearest.Text() + FaultsOf(*katalog.GetProdukt()));
}

CString NoNearOutput(const HK_DATEN_VDI3805_UEBERGABE& daten)
{
    if (std::isnan(daten.Umrechnungsfaktor)) {
        return daten.Vorlauf == daten.Ruecklauf
                   ? L"Le temperature di mandata e di ritorno non danno una potenza: sono uguali."
                   : L"Le temperature di mandata, di ritorno e del locale non danno una potenza.";
    }
    if (std::isnan(daten.Leistung)) {
        return L"La potenza richiesta non è un numero.";
    }
    return L"La potenza richiesta di " + FormatPlain(daten.Leistung) +
           L" W dista almeno 100000 W da ogni riga che rientra nei limiti.";
}

void TellNoNearOutput(const CHKVdi3805& katalog)
{
    const HK_DATEN_VDI3805_UEBERGABE& daten = katalog.GetDaten();
    CNearestRow nearest;
    for (const HK_VDI3805_TYP* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
        nearest.Offer(*row, false, 0.0, Watts(row->Daten.Leistung, daten), row->Daten.Leistung);
    }
    TellDiagnosis(HostDiagnosis::noNearOutput, NoNearOutput(daten) + nearest.Text());
}

} // namespace

void ErklaereLeereAuswahl(CHKVdi3805& katalog)
{
    if (!HasDiagnosisListener() || TellPosition(katalog)) {
        return;
    }
    if (katalog.GetErgebnis() == nullptr) {
        TellNoRowInRange(katalog);
    } else {
        TellNoNearOutput(katalog);
    }
}

void ErklaereFehlendeZeilen(CHKVdi3805& katalog)
{
    if (HasDiagnosisListener()) {
        TellPosition(katalog);
    }
}

void ErklaereFehlendeTiefen(CHKVdi3805& katalog)
{
    if (HasDiagnosisListener() && !TellPosition(katalog)) {
        TellDiagnosis(HostDiagnosis::noDepths, L"Il prodotto " +
                                                   InQuotes(katalog.GetDaten().Produkt) +
                                                   L" ha righe, ma nessun elenco di profondità.");
    }
}

void ErklaereFehlendeMasse(CHKVdi3805& katalog, double hoehe, double tiefe, double laenge)
{
    if (!HasDiagnosisListener() || TellPosition(katalog)) {
        return;
    }
    CNearestRow nearest;
    int rows = 0;
    for (const HK_VDI3805_TYP* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
        const HK_DATEN_VDI3805& size = row->Daten;
        nearest.Offer(*row, false,
                      std::fabs(size.Hoehe - hoehe) + std::fabs(size.Tiefe - tiefe) +
                          std::fabs(size.Laenge - laenge),
                      0.0, size.Leistung);
        ++rows;
    }
    TellDiagnosis(HostDiagnosis::unknownMeasures,
                  L"Il prodotto " + InQuotes(katalog.GetDaten().Produkt) + L" non ha la misura " +
                      Measures(hoehe, tiefe, laenge) +
                      (rows < kMaxKatalogZeilen
                           ? L"."
                           : L" tra le prime " + FormatInt(kMaxKatalogZeilen) + L" righe.") +
                      nearest.Text());
}
