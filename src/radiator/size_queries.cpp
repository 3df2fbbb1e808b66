#include "radiator/size_queries.h"

#include "radiator/hk_vdi3805.h"
#include "radiator/leere_antwort.h"

#include <cmath>
#include <cstdint>

namespace {

/// A measure as whole millimetres held in 16 bits, the form in which hosts take it. What no integer
/// can hold counts as 0.
short ToShort(double millimetres)
{
    constexpr double kBeyondInteger = 9.0e18;
    const bool fits = std::fabs(millimetres) < kBeyondInteger;
    return fits ? static_cast<short>(static_cast<std::int64_t>(millimetres)) : short{0};
}

/// Whole millimetres of a length in metres. The addend heals binary fractions such as 0.6 m coming
/// out just under 600 mm; it is no rounding, so that 0.5996 m stays 599 mm.
double ToWholeMillimetres(double metres)
{
    constexpr double kHeal = 0.005;
    const double millimetres = metres * 1000.0;
    return std::trunc(metres >= 0.0 ? millimetres + kHeal : millimetres - kHeal);
}

/// Empties an array, if there is one.
template <class T>
void FillPlaces(T* places, T unused, int capacity)
{
    if (places != nullptr) {
        std::fill_n(places, std::max(capacity, 0), unused);
    }
}

/// A size array of the plain form, filled until its capacity is reached.
class CSizeList
{
public:
    CSizeList(short* places, int capacity) : m_places(places), m_capacity(capacity)
    {
        FillPlaces(m_places, short{-1}, capacity);
    }

    void Add(double millimetres)
    {
        if (m_count < m_capacity) {
            m_count = SortiertEinfuegen(m_places, ToShort(millimetres), m_capacity);
        }
    }

private:
    short* m_places;
    int m_capacity;
    int m_count = 0;
};

/// The object with all rows of the product in its result.
class CAllRows : public CHKVdi3805
{
public:
    explicit CAllRows(HK_DATEN_VDI3805_UEBERGABE& uebergabe) : CHKVdi3805(&uebergabe)
    {
        SetAlleAnzeigen(1);
        Filtern();
    }
};

/// The depth that `select` takes out of the product's depths; -1.0 without rows or depths.
template <class Select>
double Tiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe, Select select)
{
    CAllRows katalog(uebergabe);
    if (katalog.GetErgebnis() == nullptr || katalog.GetTiefen().IsEmpty()) {
        ErklaereFehlendeTiefen(katalog);
        return -1.0;
    }
    return select(katalog.GetTiefen());
}

} // namespace

void LeseMasse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, OCArray<double>& hoehen,
               OCArray<double>& tiefen)
{
    CAllRows katalog(uebergabe);
    if (katalog.GetErgebnis() == nullptr) {
        ErklaereFehlendeZeilen(katalog);
        return;
    }
    hoehen.Append(katalog.GetProdukt()->Hoehen);
    tiefen.Append(katalog.GetProdukt()->Tiefen);
}

void LeereMasse(short* hoehen, short* tiefen, short* laengen, double* inhalte, int capacity)
{
    FillPlaces(hoehen, short{-1}, capacity);
    FillPlaces(tiefen, short{-1}, capacity);
    FillPlaces(laengen, short{-1}, capacity);
    FillPlaces(inhalte, -1.0, capacity);
}

void LeseMasse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, short* hoehen, short* tiefen, short* laengen,
               double* inhalte, int capacity)
{
    CSizeList heightList(hoehen, capacity);
    CSizeList depthList(tiefen, capacity);
    CSizeList lengthList(laengen, capacity);
    FillPlaces(inhalte, -1.0, capacity);
    if (hoehen == nullptr || tiefen == nullptr || laengen == nullptr || inhalte == nullptr) {
        return;
    }

    CAllRows katalog(uebergabe);
    if (katalog.GetErgebnis() != nullptr) {
        uebergabe.Typ = *katalog.GetErgebnis();
    } else {
        ErklaereFehlendeZeilen(katalog);
    }
    int contents = 0;
    for (const HK_VDI3805_TYP* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
        heightList.Add(row->Daten.Hoehe);
        depthList.Add(row->Daten.Tiefe);
        lengthList.Add(row->Daten.Laenge);
        if (contents < capacity) {
            inhalte[contents++] = row->Daten.Inhalt;
        }
    }
}

double MinTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    return Tiefe(uebergabe, [](const auto& tiefen) { return tiefen[0]; });
}

double MaxTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    return Tiefe(uebergabe, [](const auto& tiefen) { return tiefen[tiefen.GetSize() - 1]; });
}

double Inhalt(HK_DATEN_VDI3805_UEBERGABE& uebergabe, double hoehe, double tiefe, double laenge)
{
    CAllRows katalog(uebergabe);
    const double height = ToWholeMillimetres(hoehe);
    const double depth = ToWholeMillimetres(tiefe);
    const double length = ToWholeMillimetres(laenge);
    for (const HK_VDI3805_TYP* row = katalog.GetErgebnis(); row != nullptr; row = row->pNext) {
        const HK_DATEN_VDI3805& size = row->Daten;
        if (size.Hoehe == height && size.Laenge == length && size.Tiefe == depth) {
            return size.Inhalt;
        }
    }
    ErklaereFehlendeMasse(katalog, height, depth, length);
    return 0.0;
}
