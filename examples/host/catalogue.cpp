// The radiators that the program offers. A catalogue in memory needs this one function: the
// defaults find makers, kinds and products in the tree that it returns.
//
// A host that reads files writes ReadVdiFile() too: it returns the makers alone, with a null pArt,
// and reads a maker's file when the module asks for it.

#include "host/host_catalog.h"
#include "host/host_identity.h"

#include <deque>
#include <string>

// Once in every library of the host: the module refuses a process in which hosts are mixed.
RADSEL_HOST_IDENTITY("my CAD")

namespace {

/// One product: two heights, from 400 to 2000 mm of length each.
class CCatalogue
{
public:
    CCatalogue()
    {
        m_maker.Name = L"Esempio";
        m_maker.pArt = &m_kind;
        m_kind.Name = L"Radiatori a piastra";
        m_kind.pProdukt = &m_product;
        m_product.Name = L"Tipo 22";
        AddSeries(300.0, 1012.0, 3.6);
        AddSeries(600.0, 1698.0, 6.3);
        m_product.Tiefen.Add(kDepth);
    }
    CCatalogue(const CCatalogue&) = delete;
    CCatalogue& operator=(const CCatalogue&) = delete;

    HK_VDI3805_HERSTELLER* Makers() { return &m_maker; }

private:
    static constexpr double kDepth = 102.0;

    /// A series runs through rising lengths; the next one begins where the length falls back.
    /// Heights come in ascending order and once.
    void AddSeries(double height, double outputPerMetre, double waterPerMetre)
    {
        m_product.Hoehen.Add(height);
        for (int length = 400; length <= 2000; length += 200) {
            HK_VDI3805_TYP row;
            row.Name =
                L"22/" + std::to_wstring(static_cast<int>(height)) + L"/" + std::to_wstring(length);
            row.Daten.Hoehe = height;
            row.Daten.Tiefe = kDepth;
            row.Daten.Laenge = length;
            // "M": the output is stated for a metre, at 75/65/20 °C.
            row.Daten.Bauart = L'M';
            row.Daten.LeistungEN442 = outputPerMetre;
            row.Daten.Exponent = 1.33;
            // The module never scales the water content: it is that of the whole radiator.
            row.Daten.Inhalt = waterPerMetre * length / 1000.0;
            Append(row);
        }
    }

    void Append(const HK_VDI3805_TYP& row)
    {
        m_rows.push_back(row);
        (m_last != nullptr ? m_last->pNext : m_product.pTyp) = &m_rows.back();
        m_last = &m_rows.back();
    }

    HK_VDI3805_HERSTELLER m_maker;
    HK_VDI3805_ART m_kind;
    HK_VDI3805_PRODUKT m_product;
    // What was handed out must stay where it is, which a vector's elements do not.
    std::deque<HK_VDI3805_TYP> m_rows;
    HK_VDI3805_TYP* m_last = nullptr;
};

} // namespace

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    static CCatalogue catalogue;
    return catalogue.Makers();
}
