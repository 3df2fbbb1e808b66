#include "radiator/size_queries.h"

#include "tests/support/memory_catalogue.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

TEST(SizeQueries, SortedInsertionFollowsTheMarksOfEmptyPlaces)
{
    struct Case
    {
        std::vector<short> values;
        int capacity;
        std::vector<short> places;
        short last;
    };
    const Case cases[] = {
        {{600, 300, 900, 300}, 4, {300, 600, 900, -1}, 3},
        {{1, 2, 3}, 3, {1, 2, 3}, 3},
        {{3, 2, 1, 0}, 3, {0, 1, 2}, 0},
        {{5, 5, 5}, 2, {5, -1}, 1},
        {{7}, 0, {}, 0},
    };
    for (const Case& c : cases) {
        std::vector<short> places(static_cast<std::size_t>(c.capacity) + 1, -1);
        short last = -1;
        for (const short value : c.values) {
            last = SortiertEinfuegen(places.data(), value, c.capacity);
        }
        places.pop_back();
        EXPECT_EQ(places, c.places);
        EXPECT_EQ(last, c.last);
    }
    double contents[] = {-1.0, -1.0, -1.0};
    SortiertEinfuegen(contents, 2.5, 2);
    EXPECT_EQ(SortiertEinfuegen(contents, 0.5, 2), 2.0);
    EXPECT_EQ(contents[0], 0.5);
}

TEST(SizeQueries, PlainFormSortsSizesAndLeavesContentsInRowOrder)
{
    CMemoryCatalogue catalogue;
    catalogue.Add(L'E', 600.9, 100, 1000, 1000, 0, 5.5, L"prima");
    catalogue.Add(L'E', 300, 61, 1000, 1000, 0, 3.5);
    catalogue.Add(L'E', 900, 61, 1400, 1000, 0, 9.5);
    catalogue.Add(L'E', 200, 30, 70000, 1000, 0, 1.5);
    auto uebergabe = catalogue.Uebergabe(1000);
    std::array<short, 4> hoehen{};
    std::array<short, 4> tiefen{};
    std::array<short, 4> laengen{};
    std::array<double, 3> inhalte{};
    LeseMasse(uebergabe, hoehen.data(), tiefen.data(), laengen.data(), inhalte.data(), 3);
    // 200 does not enter the full list of heights; 70000 mm in 16 bits is 4464.
    EXPECT_EQ((std::vector<short>{hoehen.begin(), hoehen.begin() + 3}),
              (std::vector<short>{300, 600, 900}));
    EXPECT_EQ((std::vector<short>{tiefen.begin(), tiefen.begin() + 3}),
              (std::vector<short>{30, 61, 100}));
    EXPECT_EQ((std::vector<short>{laengen.begin(), laengen.begin() + 3}),
              (std::vector<short>{1000, 1400, 4464}));
    EXPECT_EQ(inhalte, (std::array<double, 3>{5.5, 3.5, 9.5}));
    EXPECT_EQ(uebergabe.Typ.Name, L"prima");
    EXPECT_EQ(uebergabe.Typ.pNext, nullptr) << "no link into the list that is gone";
}

TEST(SizeQueries, PlainFormWithoutRowsLeavesTheMarks)
{
    CMemoryCatalogue catalogue;
    auto uebergabe = catalogue.Uebergabe(1000);
    uebergabe.Typ.Name = L"resta";
    std::array<short, 3> hoehen{1, 2, 3};
    std::array<short, 3> tiefen{1, 2, 3};
    std::array<short, 3> laengen{1, 2, 3};
    std::array<double, 2> inhalte{1, 2};
    LeseMasse(uebergabe, hoehen.data(), tiefen.data(), laengen.data(), inhalte.data(), 2);
    for (const auto& places : {hoehen, tiefen, laengen}) {
        EXPECT_EQ(places, (std::array<short, 3>{-1, -1, 3}));
    }
    EXPECT_EQ(inhalte, (std::array<double, 2>{-1.0, -1.0}));
    EXPECT_EQ(uebergabe.Typ.Name, L"resta");

    catalogue.Add(L'E', 300, 80, 1000, 1000);
    hoehen = {1, 2, 3};
    LeseMasse(uebergabe, hoehen.data(), nullptr, laengen.data(), inhalte.data(), 2);
    EXPECT_EQ(hoehen, (std::array<short, 3>{-1, -1, 3})) << "one array is missing";
    EXPECT_EQ(inhalte, (std::array<double, 2>{-1.0, -1.0}));
    EXPECT_EQ(uebergabe.Typ.Name, L"resta");
}

TEST(SizeQueries, ArrayFormAndDepthsComeFromTheProductNotFromItsRows)
{
    CMemoryCatalogue catalogue;
    for (const double depth : {61.0, 102.0, 155.0}) {
        catalogue.Produkt().Tiefen.Add(depth);
    }
    catalogue.Produkt().Hoehen.Add(600.0);
    auto uebergabe = catalogue.Uebergabe(1000);
    OCArray<double> hoehen;
    OCArray<double> tiefen;
    tiefen.Add(7.0);
    LeseMasse(uebergabe, hoehen, tiefen);
    EXPECT_EQ(tiefen.GetSize(), 1) << "a product without rows answers nothing";
    EXPECT_EQ(MinTiefe(uebergabe), -1.0);
    EXPECT_EQ(MaxTiefe(uebergabe), -1.0);

    catalogue.Add(L'E', 300, 80, 1000, 1000);
    LeseMasse(uebergabe, hoehen, tiefen);
    EXPECT_EQ(hoehen.GetSize(), 1);
    EXPECT_EQ(tiefen.GetSize(), 4) << "appended to what was there";
    EXPECT_EQ(tiefen[3], 155.0);
    EXPECT_EQ(MinTiefe(uebergabe), 61.0);
    EXPECT_EQ(MaxTiefe(uebergabe), 155.0);

    catalogue.Produkt().Tiefen.RemoveAll();
    EXPECT_EQ(MinTiefe(uebergabe), -1.0);
    EXPECT_EQ(MaxTiefe(uebergabe), -1.0);
}

TEST(SizeQueries, WaterContentIsFoundByWholeMillimetres)
{
    CMemoryCatalogue catalogue;
    catalogue.Add(L'M', 600, 100, 1200, 1000, 0, 6.3);
    catalogue.Add(L'M', 600, 100, 1200, 1000, 0, 9.9);
    catalogue.Add(L'M', 599, 100, 1200, 1000, 0, 5.9);
    catalogue.Add(L'M', 700.5, 100, 1200, 1000, 0, 7.0);
    catalogue.Add(L'S', 600, 150, 1200, 65, 10, 8.1);
    // Ranges and requirement play no part: every row of the product is looked at.
    auto uebergabe = catalogue.Uebergabe(0.0);
    uebergabe.HoeheMax = uebergabe.TiefeMax = uebergabe.LaengeMax = 1.0;
    struct Case
    {
        double hoehe, tiefe, laenge, inhalt;
    };
    const Case cases[] = {
        {0.6, 0.1, 1.2, 6.3},         // the first of two equal rows
        {0.6 - 1e-12, 0.1, 1.2, 6.3}, // just under 600 mm
        {0.5996, 0.1, 1.2, 5.9},      // no rounding
        {0.7005, 0.1, 1.2, 0.0},      // becomes 700
        {0.6, 0.15, 1.2, 8.1},        // as the catalogue states it, not times ten sections
        {0.6, 0.1, 1.201, 0.0},       {-0.6, 0.1, 1.2, 0.0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Inhalt(uebergabe, c.hoehe, c.tiefe, c.laenge), c.inhalt) << c.hoehe;
    }
    EXPECT_EQ(uebergabe.Leistung, 0.0);
    uebergabe.Produkt = L"nessuno";
    EXPECT_EQ(Inhalt(uebergabe, 0.6, 0.1, 1.2), 0.0);
}

} // namespace
