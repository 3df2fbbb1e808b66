#include "common/katalog_pruefung.h"

#include "platform/format.h"
#include "platform/rounding.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace {

using Rows = std::vector<const HK_VDI3805_TYP*>;

bool IsPerMetre(const HK_DATEN_VDI3805& row)
{
    return ToLower(row.Bauart) == L'm';
}

bool IsPerSection(const HK_DATEN_VDI3805& row)
{
    return ToLower(row.Bauart) == L's';
}

/// As far as rows can tell: what is the same in all sizes of a series.
bool AreOfOneSeries(const HK_DATEN_VDI3805& a, const HK_DATEN_VDI3805& b)
{
    const bool shared = IsPerMetre(a) || IsPerSection(a);
    return a.Hoehe == b.Hoehe && a.Tiefe == b.Tiefe && ToLower(a.Bauart) == ToLower(b.Bauart) &&
           a.Exponent == b.Exponent && (!shared || a.LeistungEN442 == b.LeistungEN442);
}

double StandardOutput(const HK_DATEN_VDI3805& row)
{
    double output = row.LeistungEN442;
    if (IsPerMetre(row)) {
        output *= row.Laenge / 1000.0;
    } else if (IsPerSection(row)) {
        output *= row.Elemente;
    }
    return RoundTo(output, 1.0);
}

CString Millimetres(double value)
{
    return FormatPlain(value) + L" mm";
}

/// A measure of a row with its name and its place in the record.
struct CMass
{
    KatalogFeld feld;
    const wchar_t* name;
    double HK_DATEN_VDI3805::*wert;
};

constexpr CMass kMasse[] = {
    {KatalogFeld::hoehe, L"l'altezza", &HK_DATEN_VDI3805::Hoehe},
    {KatalogFeld::tiefe, L"la profondità", &HK_DATEN_VDI3805::Tiefe},
    {KatalogFeld::laenge, L"la lunghezza", &HK_DATEN_VDI3805::Laenge},
};

class CProduktPruefung
{
public:
    explicit CProduktPruefung(const HK_VDI3805_PRODUKT& produkt) : m_produkt(produkt) {}

    std::vector<CKatalogMangel> Pruefe()
    {
        SammleZeilen();
        PruefeAnzahl();
        PruefeListe(m_produkt.Hoehen, kMasse[0], KatalogFeld::hoehen);
        PruefeListe(m_produkt.Tiefen, kMasse[1], KatalogFeld::tiefen);
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            PruefeMasse(i);
            PruefeWerte(i);
            PruefeReihenfolge(i);
            PruefeDoppelte(i);
        }
        return std::move(m_maengel);
    }

private:
    void Melde(int row, KatalogFeld feld, KatalogRegel regel, CString text)
    {
        m_maengel.push_back({row, feld, regel, std::move(text)});
    }

    void Melde(std::size_t row, KatalogFeld feld, KatalogRegel regel, CString text)
    {
        Melde(static_cast<int>(row), feld, regel, std::move(text));
    }

    void SammleZeilen()
    {
        std::set<const HK_VDI3805_TYP*> seen;
        for (const HK_VDI3805_TYP* row = m_produkt.pTyp; row != nullptr; row = row->pNext) {
            if (!seen.insert(row).second) {
                Melde(m_rows.size() - 1, KatalogFeld::produkt, KatalogRegel::endlos,
                      L"dopo questa riga la catena torna a una riga precedente e non finisce mai");
                return;
            }
            m_rows.push_back(row);
        }
    }

    void PruefeAnzahl()
    {
        if (m_rows.empty()) {
            Melde(-1, KatalogFeld::produkt, KatalogRegel::anzahl, L"il prodotto non ha righe");
            return;
        }
        if (m_rows.size() > kMaxKatalogZeilen) {
            Melde(-1, KatalogFeld::produkt, KatalogRegel::anzahl,
                  L"il prodotto ha " + FormatInt(static_cast<long long>(m_rows.size())) +
                      L" righe: quelle oltre la " + FormatInt(kMaxKatalogZeilen) +
                      L"ª possono mancare dalla scelta");
        }
        if (std::ranges::all_of(m_rows, [](const HK_VDI3805_TYP* row) {
                return IsPerSection(row->Daten) && row->Daten.Elemente <= 1.0;
            })) {
            Melde(-1, KatalogFeld::elemente, KatalogRegel::unerreichbar,
                  L"il prodotto ha soltanto elementi singoli, che nessuna scelta senza limiti di "
                  L"potenza prende");
        }
    }

    void PruefeListe(const OCArray<double>& liste, const CMass& mass, KatalogFeld feld)
    {
        const auto melde = [&](const CString& text) { Melde(-1, feld, KatalogRegel::liste, text); };
        for (int i = 1; i < liste.GetSize(); ++i) {
            if (!(liste[i - 1] < liste[i])) {
                melde(L"l'elenco non cresce: " + FormatPlain(liste[i]) + L" segue " +
                      FormatPlain(liste[i - 1]));
            }
        }
        std::set<double> values;
        for (const HK_VDI3805_TYP* row : m_rows) {
            const double value = row->Daten.*mass.wert;
            if (!std::isnan(value)) {
                values.insert(value);
            }
        }
        for (const double value : values) {
            if (std::find(liste.begin(), liste.end(), value) == liste.end()) {
                melde(L"all'elenco manca il valore " + Millimetres(value) + L", che ha una riga");
            }
        }
        for (const double value : liste) {
            if (!std::isnan(value) && !values.contains(value)) {
                melde(L"l'elenco ha il valore " + Millimetres(value) + L", che nessuna riga ha");
            }
        }
    }

    void PruefeMasse(std::size_t i)
    {
        constexpr double largest = std::numeric_limits<short>::max();
        for (const CMass& mass : kMasse) {
            const double value = m_rows[i]->Daten.*mass.wert;
            if (!std::isfinite(value) || value <= 0.0) {
                Melde(i, mass.feld, KatalogRegel::wert,
                      CString(mass.name) + L" " + FormatPlain(value) + L" non è una misura");
            } else if (value != std::trunc(value) && m_seen.emplace(mass.feld, value).second) {
                Melde(i, mass.feld, KatalogRegel::ganzzahl,
                      CString(mass.name) + L" " + Millimetres(value) +
                          L" non è in millimetri interi: GetHK_Inhalt non la trova e "
                          L"Read_HK_Masse ne taglia i decimali");
            } else if (value > largest && m_seen.emplace(mass.feld, value).second) {
                Melde(i, mass.feld, KatalogRegel::ganzzahl,
                      CString(mass.name) + L" " + Millimetres(value) + L" supera " +
                          FormatPlain(largest) + L", il massimo che Read_HK_Masse può dare");
            }
        }
    }

    void PruefeWerte(std::size_t i)
    {
        const HK_DATEN_VDI3805& row = m_rows[i]->Daten;
        if (IsPerSection(row) &&
            !(row.Elemente >= 1.0 && row.Elemente == std::trunc(row.Elemente))) {
            Melde(i, KatalogFeld::elemente, KatalogRegel::wert,
                  FormatPlain(row.Elemente) + L" non è un numero di elementi");
        }
        const double output = StandardOutput(row);
        if (!std::isfinite(output) || output < 1.0) {
            Melde(i, KatalogFeld::leistung, KatalogRegel::wert,
                  L"la potenza della misura, arrotondata, è di " + FormatPlain(output) + L" W");
        }
        if (!std::isfinite(row.Inhalt) || row.Inhalt <= 0.0) {
            Melde(i, KatalogFeld::inhalt, KatalogRegel::wert,
                  L"con il contenuto d'acqua " + FormatPlain(row.Inhalt) +
                      L" l GetHK_Inhalt risponde come per una misura che non c'è");
        }
    }

    /// The filter pass takes a row that a shorter one follows as the longest of its series.
    void PruefeReihenfolge(std::size_t i)
    {
        if (i == 0) {
            return;
        }
        const HK_DATEN_VDI3805& before = m_rows[i - 1]->Daten;
        const HK_DATEN_VDI3805& row = m_rows[i]->Daten;
        if (!AreOfOneSeries(before, row)) {
            m_nRunBegin = i;
            if (row.Laenge >= before.Laenge) {
                Melde(
                    i, KatalogFeld::laenge, KatalogRegel::reihenfolge,
                    L"la serie comincia con " + Millimetres(row.Laenge) +
                        L" e quella prima finisce con " + Millimetres(before.Laenge) +
                        L": una serie deve cominciare più corta, altrimenti il filtro non vede la "
                        L"fine di quella prima e non ne conserva la riga più lunga");
            }
            return;
        }
        if (!(row.Laenge < before.Laenge)) {
            return;
        }
        // Another series of the same sizes begins anew; lengths that merely fall do not.
        const bool anew = i - m_nRunBegin > 1 && row.Laenge <= m_rows[m_nRunBegin]->Daten.Laenge;
        m_nRunBegin = i;
        if (!anew) {
            Melde(i, KatalogFeld::laenge, KatalogRegel::reihenfolge,
                  L"dopo " + Millimetres(before.Laenge) + L" segue " + Millimetres(row.Laenge) +
                      L" nella stessa serie: il filtro crede che la serie finisca con " +
                      Millimetres(before.Laenge));
        }
    }

    void PruefeDoppelte(std::size_t i)
    {
        const HK_VDI3805_TYP& row = *m_rows[i];
        const HK_DATEN_VDI3805& size = row.Daten;
        if (std::isnan(size.Hoehe + size.Tiefe + size.Laenge)) {
            return;
        }
        const auto first =
            m_byMeasures.try_emplace({size.Hoehe, size.Tiefe, size.Laenge}, &row).first->second;
        const CString measures = FormatPlain(size.Hoehe) + L" x " + FormatPlain(size.Tiefe) +
                                 L" x " + Millimetres(size.Laenge);
        if (!m_byName.emplace(row.Name, size.Hoehe, size.Tiefe, size.Laenge).second) {
            Melde(i, KatalogFeld::laenge, KatalogRegel::doppelt,
                  L"la misura " + measures + L" con il nome \"" + row.Name +
                      L"\" compare due volte: di due righe uguali la finestra di scelta prende "
                      L"l'ultima");
        } else if (first->Daten.Inhalt != size.Inhalt) {
            Melde(i, KatalogFeld::inhalt, KatalogRegel::doppelt,
                  L"la misura " + measures + L" ha qui il contenuto " + FormatPlain(size.Inhalt) +
                      L" l e in una riga precedente (\"" + first->Name + L"\") " +
                      FormatPlain(first->Daten.Inhalt) + L" l: GetHK_Inhalt risponde con quello");
        }
    }

    const HK_VDI3805_PRODUKT& m_produkt;
    Rows m_rows;
    std::vector<CKatalogMangel> m_maengel;
    /// From where on lengths have risen in the series of the row before.
    std::size_t m_nRunBegin = 0;
    /// Values that have been told.
    std::set<std::pair<KatalogFeld, double>> m_seen;
    std::map<std::tuple<double, double, double>, const HK_VDI3805_TYP*> m_byMeasures;
    std::set<std::tuple<CString, double, double, double>> m_byName;
};

} // namespace

std::vector<CKatalogMangel> PruefeProdukt(const HK_VDI3805_PRODUKT& produkt)
{
    return CProduktPruefung(produkt).Pruefe();
}
