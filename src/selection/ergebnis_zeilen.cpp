#include "selection/ergebnis_zeilen.h"

#include "platform/format.h"
#include "platform/message.h"
#include "platform/number_scan.h"
#include "radiator/size_queries.h"

#include <iterator>
#include <string_view>
#include <utility>

namespace {

constexpr int kTextTitel = 1;
constexpr int kTextNichtGefunden = 16;

constexpr std::wstring_view kTexte[] = {
    L"Scelta Corpi scaldanti",
    L"Type",
    L"Alt.\n[mm]",
    L"Prof.\n[mm]",
    L"Lung.\n[mm]",
    L"EN442\n[Watt]",
    L"Resa\nC.S",
    L"Nr.\nElem",
    L"Descrizione tipo del corpo scaldante",
    L"Altezza del corpo scaldante",
    L"Profondit\u00E0 del corpo scaldante",
    L"Lunghezza del corpo scaldante",
    L"Resa corpo scaldante secondo EN442",
    L"Resa a norma del corpo scaldante",
    L"Numero elementi del corpo scaldante (a piastra == 1)",
    L"Nessun corpo scaldante con le\nmisure %.0lf / %.0lf\ntrovato.\nSelezionare un'altro!",
    L"Litri",
    L"Contenuto acqua corpi scaldanti",
};

/// A column that shows a number of the row.
struct CZahlenSpalte
{
    double HK_DATEN_VDI3805::*wert;
    int stellen;
};

constexpr CZahlenSpalte kZahlen[] = {
    {&HK_DATEN_VDI3805::Hoehe, 0},    {&HK_DATEN_VDI3805::Tiefe, 0},
    {&HK_DATEN_VDI3805::Laenge, 0},   {&HK_DATEN_VDI3805::LeistungEN442, 0},
    {&HK_DATEN_VDI3805::Leistung, 0}, {&HK_DATEN_VDI3805::Elemente, 0},
    {&HK_DATEN_VDI3805::Inhalt, 1},
};
static_assert(std::size(kZahlen) == kErgebnisSpalten - 1);

/// Numbers of a column's heading and tooltip.
struct CSpaltenTexte
{
    int titel;
    int tooltip;
};

constexpr CSpaltenTexte kSpaltenTexte[kErgebnisSpalten] = {
    {2, 9}, {3, 10}, {4, 11}, {5, 12}, {6, 13}, {7, 14}, {8, 15}, {17, 18},
};

bool IsSpalte(int spalte)
{
    return spalte >= 0 && spalte < kErgebnisSpalten;
}

int Vorzeichen(auto a, auto b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

int VergleicheTexte(const CString& a, const CString& b, int beideLeer)
{
    if (a.empty() && b.empty()) {
        return beideLeer;
    }
    if (a.empty() || b.empty()) {
        return a.empty() ? 1 : -1;
    }
    return Vorzeichen(a.compare(b), 0);
}

/// Puts the two whole numbers into the places of the text that stand for them.
CString MitZahlen(CString text, double erste, double zweite)
{
    constexpr std::wstring_view kPlatz = L"%.0lf";
    for (const double zahl : {erste, zweite}) {
        text.replace(text.find(kPlatz), kPlatz.size(), FormatFixed(zahl, 0));
    }
    return text;
}

} // namespace

CString ErgebnisText(int nummer)
{
    constexpr int kAnzahl = static_cast<int>(std::size(kTexte));
    return nummer >= 1 && nummer <= kAnzahl ? CString(kTexte[nummer - 1]) : CString();
}

CString SpaltenTitel(int spalte)
{
    return IsSpalte(spalte) ? ErgebnisText(kSpaltenTexte[spalte].titel) : CString();
}

CString SpaltenTooltip(int spalte)
{
    return IsSpalte(spalte) ? ErgebnisText(kSpaltenTexte[spalte].tooltip) : CString();
}

void ZellTexte(const HK_VDI3805_TYP& zeile, ErgebnisTexte& texte)
{
    texte[0] = zeile.Name;
    for (std::size_t i = 0; i < std::size(kZahlen); ++i) {
        AssignFixed(texte[i + 1], zeile.Daten.*kZahlen[i].wert, kZahlen[i].stellen);
    }
}

int VergleicheZellen(const CErgebnisZelle& erste, const CErgebnisZelle& zweite, bool absteigend)
{
    const CErgebnisZelle& a = absteigend ? zweite : erste;
    const CErgebnisZelle& b = absteigend ? erste : zweite;
    if (a.art == ZellArt::zahl) {
        return Vorzeichen(_wtof(a.text), _wtof(b.text));
    }
    return VergleicheTexte(a.text, b.text, a.art == ZellArt::text ? 0 : 1);
}

CErgebnisZeilen::CErgebnisZeilen(CErgebnisGitter& gitter, CAuswahlKriterien& kriterien)
    : m_gitter(gitter), m_kriterien(kriterien), m_strTitel(ErgebnisText(kTextTitel))
{
    m_Sortierung.fill(true);
}

void CErgebnisZeilen::ZeilenAufbauen(bool bFiltern)
{
    ZeileWaehlen(0);
    m_gitter.SetzeZeichnen(false);
    ZeilenLeeren();
    if (bFiltern) {
        m_kriterien.m_pVdi->Filtern();
    }
    const int beste = BesteOderErweiterte();
    ZeilenEinfuegen();
    SpaltenAnpassen(0, m_nSpalten, m_nZeilen);
    m_gitter.SetzeZeichnen(true);
    ZeileWaehlen(beste);
    m_gitter.ZeichneAlles();
}

int CErgebnisZeilen::BesteOderErweiterte()
{
    int beste = m_kriterien.m_pVdi->BesteAuswahl();
    m_kriterien.m_bTreffer = beste != -1;
    if (m_kriterien.m_bTreffer) {
        return beste;
    }
    if (!m_kriterien.m_bWarnen) {
        return 0;
    }
    Erweitern();
    beste = m_kriterien.m_pVdi->BesteAuswahl();
    m_kriterien.m_bTreffer = beste != -1;
    return beste;
}

void CErgebnisZeilen::Erweitern()
{
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = m_kriterien.m_pVdi->GetDaten();
    ShowMessage(
        {m_strTitel,
         MitZahlen(ErgebnisText(kTextNichtGefunden), uebergabe.LaengeMax, uebergabe.HoeheMax),
         MessageIcon::information});
    m_kriterien.m_bWarnen = false;
    uebergabe.LaengeMin = 0.0;
    uebergabe.TiefeMax = MaxTiefe(uebergabe);
    uebergabe.TiefeMin = MinTiefe(uebergabe);
    m_kriterien.m_pVdi->Filtern();
}

void CErgebnisZeilen::ZeilenEinfuegen()
{
    ErgebnisTexte texte;
    for (const HK_VDI3805_TYP* zeile = m_kriterien.m_pVdi->GetErgebnis(); zeile != nullptr;
         zeile = zeile->pNext) {
        ZellTexte(*zeile, texte);
        m_gitter.FuegeZeileHinzu(texte);
        ++m_nZeilen;
    }
}

void CErgebnisZeilen::ZeilenLeeren()
{
    while (m_gitter.LoescheZeile(0)) {
    }
    m_nZeilen = 0;
}

void CErgebnisZeilen::ErgebnisEntfernen()
{
    m_gitter.SetzeZeichnen(false);
    ZeilenLeeren();
    m_gitter.SetzeZeichnen(true);
    m_gitter.ZeichneAlles();
}

void CErgebnisZeilen::ZeileWaehlen(int zeile)
{
    m_gitter.GeheZuZeile(zeile);
    m_nAktuelleZeile = zeile;
    m_gitter.ZeichneAlles();
    m_kriterien.LeistungIstAnzeigen(m_gitter.Text(kSpalteLeistung, zeile));
}

void CErgebnisZeilen::BesteZeileWaehlen()
{
    ZeileWaehlen(m_kriterien.m_pVdi->BesteAuswahl());
}

void CErgebnisZeilen::ZeileGewechselt(int zeile)
{
    const auto zahl = [&](int spalte) { return _wtof(m_gitter.Text(spalte, zeile)); };
    m_kriterien.m_pVdi->SelectRow(m_gitter.Text(0, zeile), zahl(1), zahl(2), zahl(3));
    ZeileWaehlen(zeile);
}

void CErgebnisZeilen::UeberschriftGeklickt(int spalte)
{
    if (spalte < 0 || spalte >= m_nSpalten || m_nZeilen == 0) {
        return;
    }
    bool& aufsteigend = m_Sortierung[static_cast<std::size_t>(spalte)];
    aufsteigend = !aufsteigend;
    m_gitter.Sortiere(spalte, aufsteigend);
    m_gitter.ZeichneAlles();
}

void CErgebnisZeilen::SpaltenAnpassen(int erste, int anzahl, int zeilen)
{
    m_gitter.PasseBreiteAn(erste, anzahl, zeilen, kSchmalsteSpalte);
}
