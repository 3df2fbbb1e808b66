#include "radiator/hk_vdi3805.h"
#include "radiator/output_conversion.h"

#include "tests/support/memory_catalogue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <utility>
#include <vector>

namespace {

// The filter written once more, in another shape: on a flat list, with every rule as a plain
// condition, so that a slip in one of the two shows as a difference.

struct Modes
{
    int leistungFilter;
    int alle;
    bool ersterLauf;
};

struct Found
{
    const HK_VDI3805_TYP* row;
    double standard;
    double design;
    double sections;
};

std::vector<const HK_VDI3805_TYP*> Flat(const HK_VDI3805_PRODUKT& produkt)
{
    std::vector<const HK_VDI3805_TYP*> rows;
    for (const HK_VDI3805_TYP* row = produkt.pTyp; row != nullptr; row = row->pNext) {
        rows.push_back(row);
    }
    return rows;
}

std::vector<Found> NaiveFilter(const HK_VDI3805_PRODUKT& produkt,
                               const HK_DATEN_VDI3805_UEBERGABE& wish, const Modes& modes)
{
    const double required = wish.Leistung == 0.0 ? 1000.0 : wish.Leistung;
    double low = wish.LeistungMin == -1.0 ? (1 - wish.Toleranz) * wish.Leistung : wish.LeistungMin;
    double high = wish.LeistungMax == -1.0 ? (1 + wish.Toleranz) * wish.Leistung : wish.LeistungMax;
    if (!modes.ersterLauf) {
        low = (1 - 0.1) * required;
        high = (1 + 0.1) * required;
    }
    double factor = 1.0;
    if (wish.Vorlauf > 0 && wish.Ruecklauf > 0) {
        factor = GetLeistungsFaktor(wish.Vorlauf, wish.Ruecklauf, wish.Raumtemperatur);
    }
    const auto rows = Flat(produkt);
    std::vector<Found> found;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const HK_DATEN_VDI3805& d = rows[i]->Daten;
        const bool metre = d.Bauart == 'M' || d.Bauart == 'm';
        const bool section = d.Bauart == 'S' || d.Bauart == 's';
        const double count = section ? d.Elemente : 0.0;
        double standard = d.LeistungEN442;
        if (metre) {
            standard = d.LeistungEN442 * d.Laenge / 1000.0;
        }
        if (section) {
            standard = d.LeistungEN442 * d.Elemente;
        }
        standard = std::floor(standard + 0.5);
        const double design = std::floor(standard * factor + 0.5);

        const bool tooLow = d.Hoehe < wish.HoeheMin - 10.0;
        const bool tooHigh = d.Hoehe > wish.HoeheMax + 10.0;
        const bool depthOff = d.Tiefe < wish.TiefeMin || d.Tiefe > wish.TiefeMax;
        const bool lengthOff = d.Laenge < wish.LaengeMin || d.Laenge > wish.LaengeMax;
        const bool endsSeries = i + 1 < rows.size() && rows[i + 1]->Daten.Laenge < d.Laenge;
        const bool rescued = endsSeries && d.Laenge < wish.LaengeMax;
        bool outputOff = section && d.Elemente <= 1.0;
        if (modes.leistungFilter != 0) {
            outputOff = !(design >= low) || !(design <= high);
        }
        const bool refused = tooLow || tooHigh || depthOff || (lengthOff && !rescued) || outputOff;
        if (modes.alle != 0 || !refused) {
            found.push_back({rows[i], standard, design, count});
        }
    }
    if (found.size() > 2000) {
        found.resize(2000);
    }
    return found;
}

class CRandom
{
public:
    explicit CRandom(unsigned seed) : m_engine(seed) {}

    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    bool OneIn(int n) { return Below(n) == 0; }

    /// One of few values, so that bounds and rows meet exactly.
    double Grid(double first, double step, int count) { return first + step * Below(count); }

private:
    std::mt19937 m_engine;
};

void FillProduct(CMemoryCatalogue& catalogue, CRandom& random)
{
    const int rows = random.OneIn(500) ? 1990 + random.Below(30) : random.Below(40);
    for (int i = 0; i < rows; ++i) {
        HK_VDI3805_TYP& row = catalogue.Add(L"MmSsE\0x"[random.Below(7)], random.Grid(300, 5, 20),
                                            random.Grid(50, 25, 5), random.Grid(400, 100, 12),
                                            random.Grid(100, 212.7, 10), random.Below(5));
        row.Daten.Exponent = random.Grid(1.2, 0.05, 4);
    }
}

HK_DATEN_VDI3805_UEBERGABE RandomWish(const CMemoryCatalogue& catalogue, CRandom& random)
{
    auto wish = catalogue.Uebergabe(random.OneIn(10) ? 0.0 : random.Grid(100, 123.5, 20));
    wish.HoeheMin = random.Grid(280, 5, 25);
    wish.HoeheMax = wish.HoeheMin + random.Grid(-5, 20, 8);
    wish.TiefeMin = random.Grid(25, 5, 21);
    wish.TiefeMax = random.Grid(50, 5, 31);
    wish.LaengeMin = random.Grid(300, 100, 10);
    wish.LaengeMax = random.Grid(400, 100, 15);
    // Of all values below 0 only -1 asks for a derived bound.
    wish.LeistungMin = random.OneIn(2) ? -1.0 : random.Grid(-100, 100, 11);
    wish.LeistungMax = random.OneIn(2) ? -1.0 : random.Grid(-100, 200, 13);
    wish.Toleranz = random.Grid(0.0, 0.1, 6);
    wish.Vorlauf = random.OneIn(10) ? 0.0 : random.Grid(35, 10, 6);
    wish.Ruecklauf = random.OneIn(10) ? -5.0 : random.Grid(15, 10, 6);
    wish.Raumtemperatur = random.Grid(15, 5, 3);
    wish.Umrechnungsfaktor = 0.5; // of an earlier pass
    return wish;
}

TEST(FilterDifferential, AgreesWithANaiveFilterOnRandomCatalogues)
{
    constexpr int kRounds = 12000;
    constexpr unsigned kSeed = 20261121;
    RecordProperty("seed", static_cast<int>(kSeed));
    CRandom random(kSeed);
    CMemoryCatalogue catalogue;
    long long taken = 0;
    long long refused = 0;
    for (int round = 0; round < kRounds; ++round) {
        SCOPED_TRACE(testing::Message() << "seed " << kSeed << ", round " << round);
        catalogue.Clear();
        FillProduct(catalogue, random);
        auto wish = RandomWish(catalogue, random);
        const Modes modes{random.Below(2), random.OneIn(8) ? 1 : 0, !random.OneIn(4)};
        const auto expected = NaiveFilter(catalogue.Produkt(), wish, modes);

        CHKVdi3805 katalog(&wish);
        katalog.SetLeistungFilter(modes.leistungFilter);
        katalog.SetAlleAnzeigen(modes.alle);
        katalog.SetErsterLauf(modes.ersterLauf);
        katalog.Filtern();

        const HK_VDI3805_TYP* row = katalog.GetErgebnis();
        const HK_VDI3805_TYP* before = nullptr;
        for (const Found& e : expected) {
            ASSERT_NE(row, nullptr);
            ASSERT_EQ(row->Daten.Hoehe, e.row->Daten.Hoehe);
            ASSERT_EQ(row->Daten.Tiefe, e.row->Daten.Tiefe);
            ASSERT_EQ(row->Daten.Laenge, e.row->Daten.Laenge);
            ASSERT_EQ(row->Daten.LeistungEN442, e.standard);
            ASSERT_TRUE(row->Daten.Leistung == e.design ||
                        (std::isnan(row->Daten.Leistung) && std::isnan(e.design)));
            ASSERT_EQ(row->Daten.Elemente, e.sections);
            ASSERT_EQ(row->Daten.Exponent, e.row->Daten.Exponent);
            ASSERT_EQ(row->pPrev, before);
            before = std::exchange(row, row->pNext);
        }
        ASSERT_EQ(row, nullptr);
        taken += static_cast<long long>(expected.size());
        refused += static_cast<long long>(Flat(catalogue.Produkt()).size() - expected.size());
    }
    // A comparison of empty lists would prove nothing.
    EXPECT_GT(taken, kRounds);
    EXPECT_GT(refused, kRounds);
}

} // namespace
