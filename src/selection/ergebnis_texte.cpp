#include "selection/ergebnis_texte.h"

#include "platform/format.h"
#include "platform/number_scan.h"

#include <bit>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace {

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

void ZellText(const HK_VDI3805_TYP& zeile, int spalte, CString& text)
{
    if (spalte == 0) {
        text = zeile.Name;
    } else {
        const CZahlenSpalte& zahl = kZahlen[spalte - 1];
        AssignFixed(text, zeile.Daten.*zahl.wert, zahl.stellen);
    }
}

bool HabenDenselbenWert(const HK_VDI3805_TYP& eine, const HK_VDI3805_TYP& andere, int spalte)
{
    if (spalte == 0) {
        return eine.Name == andere.Name;
    }
    // By their bits: zeros of both signs are equal but have different texts.
    const auto wert = kZahlen[spalte - 1].wert;
    return std::bit_cast<std::uint64_t>(eine.Daten.*wert) ==
           std::bit_cast<std::uint64_t>(andere.Daten.*wert);
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
