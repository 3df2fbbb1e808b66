#include "radiator/hk_vdi3805.h"

#include "tests/support/memory_catalogue.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

/// Both searches over rows with these outputs; the index is the number of the row.
struct Search
{
    std::vector<double> outputs;
    double required;
    double leistungMin;
    int best;
    int bestMin;
};

CString NameOf(double output)
{
    return L"Tipo " + std::to_wstring(static_cast<int>(output));
}

TEST(BestMatch, TheNearestRowWinsAndTheFirstOfEquals)
{
    const Search cases[] = {
        {{995, 1005}, 1000, -1.0, 0, 0},
        {{1005, 995}, 1000, 0.0, 0, 0},
        {{700, 1300, 1001, 998}, 1000, -1.0, 2, 2},
        {{}, 1000, -1.0, -1, -1},
        {{101001, 101000}, 1000, -1.0, -1, -1},
        {{101000, 100999}, 1000, -1.0, 1, 1},
        // Four tenths of a watt are near and yet no hit.
        {{1000, 1001}, 1000.6, -1.0, 1, 1},
        // The last row is nearer and below the minimum: nothing follows that could replace it.
        {{1000, 890}, 900, 900.0, 1, 1},
        // The first row gives its place up, to a row however far away.
        {{890, 1500}, 900, 900.0, 0, 1},
        // It displaced an adequate row before; from the replacement on, distance counts again.
        {{1000, 890, 1500, 1400, 1450}, 900, 900.0, 1, 3},
        // A minimum that is not above 0 asks nothing.
        {{890, 1500}, 900, 0.0, 0, 0},
        // A row exactly on the minimum keeps its place, and a hit below it ends nothing.
        {{900, 1500}, 1000, 900.0, 0, 0},
        {{900, 1500}, 900, 950.0, 0, 1},
        // A place that was given up still goes to a row nearer than 100000 W only.
        {{890, 101000}, 900, 900.0, 0, 0},
    };
    for (const Search& c : cases) {
        CMemoryCatalogue catalogue;
        for (const double output : c.outputs) {
            catalogue.AddUnit(output, NameOf(output));
        }
        for (const bool minimum : {false, true}) {
            auto uebergabe = catalogue.Uebergabe(c.required);
            uebergabe.LeistungMin = c.leistungMin;
            uebergabe.TypName = L"prima";
            uebergabe.Daten.Leistung = 4711;
            CHKVdi3805 katalog(&uebergabe);
            katalog.SetLeistungFilter(0);
            katalog.Filtern();
            const int index =
                minimum ? katalog.BesteAuswahlMinLeistung(&uebergabe) : katalog.BesteAuswahl();
            const int expected = minimum ? c.bestMin : c.best;
            EXPECT_EQ(index, expected) << testing::PrintToString(c.outputs) << " min " << minimum;
            const double chosen =
                expected < 0 ? 4711 : c.outputs[static_cast<std::size_t>(expected)];
            EXPECT_EQ(uebergabe.Daten.Leistung, chosen);
            EXPECT_EQ(uebergabe.Daten.Hoehe, expected < 0 ? 0.0 : 600.0);
            EXPECT_EQ(uebergabe.TypName, expected < 0 ? L"prima" : NameOf(chosen));
        }
    }
}

TEST(BestMatch, ARowIsSelectedByNameAndExactMeasures)
{
    CMemoryCatalogue catalogue;
    catalogue.Add(L'E', 600, 100, 1000, 1000, 0, 1.0, L"Tipo 22");
    catalogue.Add(L'E', 600, 100, 1000, 1200, 0, 2.0, L"Tipo 22");
    catalogue.Add(L'E', 600, 100, 1000, 1300, 0, 3.0, L"TIPO 22");
    auto uebergabe = catalogue.Uebergabe(1000);
    CHKVdi3805 katalog(&uebergabe);
    katalog.SetAlleAnzeigen(1);
    katalog.Filtern();

    katalog.SelectRow(L"Tipo 22", 600, 100, 1000);
    EXPECT_EQ(uebergabe.Daten.Inhalt, 2.0) << "of several the last one";
    EXPECT_EQ(uebergabe.TypName, L"Tipo 22");

    katalog.SelectRow(L"tipo 22", 600, 100, 1000);
    EXPECT_EQ(uebergabe.TypName, L"Tipo 22");
    katalog.SelectRow(L"Tipo 22", 600.001, 100, 1000);
    katalog.SelectRow(L"Tipo 22", 600, 99, 1000);
    katalog.SelectRow(L"Tipo 22", 600, 100, 1001);
    EXPECT_EQ(uebergabe.Daten.Inhalt, 2.0);
}

TEST(BestMatch, ManufacturersAreListedOnceAPassHasMetTheCatalogue)
{
    CMemoryCatalogue catalogue;
    auto uebergabe = catalogue.Uebergabe(1000);
    CHKVdi3805 katalog(&uebergabe);
    CPtrArray liste;
    liste.Add(nullptr);
    EXPECT_EQ(katalog.GetHerstellerListe(liste), 0);
    katalog.Filtern();
    ASSERT_EQ(katalog.GetHerstellerListe(liste), 2);
    EXPECT_EQ(static_cast<HK_VDI3805_HERSTELLER*>(liste[0])->Name, L"Prova");
    EXPECT_EQ(static_cast<HK_VDI3805_HERSTELLER*>(liste[1])->Name, L"Prova seconda");
    EXPECT_EQ(katalog.GetHerstellerListe(liste), 2) << "replaced, not appended to";
}

} // namespace
