#include "tests/reference_host/catalog/catalogue_fixture.h"

#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace {
using CCatalogueRowsTest = CCatalogueTest;

/// first, first + step ... last
std::vector<double> Steps(int first, int last, int step)
{
    std::vector<double> values;
    for (int value = first; value <= last; value += step) {
        values.push_back(value);
    }
    return values;
}

/// The sizes around a requirement with the smallest and the largest one of their series.
std::vector<double> WithEnds(double smallest, std::vector<double> values, double largest)
{
    if (values.front() != smallest) {
        values.insert(values.begin(), smallest);
    }
    if (values.back() != largest) {
        values.push_back(largest);
    }
    return values;
}

// 1000 W/m from 400 to 3000 mm in steps of 100: a watt a millimetre.
constexpr char kCut[] = "700;1;Z;M;600;100;1000;1.3;5\n710.02;400;3000;100\n";
// 65 W a section of 45 mm, 30 mm on top.
constexpr char kSections[] = "700;1;G;S;600;101;65;1.28;0.9\n710.03;45;50;30\n";
} // namespace

TEST_F(CCatalogueRowsTest, LengthsCutToMeasureLieAroundTheRequirement)
{
    const std::tuple<double, int, int> cases[] = {
        {1000, 400, 1600},    // 40 % and 160 %, which is six steps each way as well
        {2000, 800, 3000},    // 800 W to 3200 W, but the product ends at 3000 mm
        {1250, 500, 2000},    // 500 W to 2000 W
        {700, 400, 1600},     // 160 % is 1120 mm; thirteen sizes all the same
        {300, 400, 1600},     // below the shortest: the thirteen shortest
        {100000, 1800, 3000}, // beyond the longest: the thirteen longest
        {1e300, 1800, 3000},
        {0, 400, 1600},
        {-500, 400, 1600},
        {std::nan(""), 400, 1600},
        {std::numeric_limits<double>::infinity(), 400, 1600},
    };
    for (const auto& [required, shortest, longest] : cases) {
        EXPECT_EQ(Lengths(kCut, required), WithEnds(400, Steps(shortest, longest, 100), 3000))
            << required;
    }
}

TEST_F(CCatalogueRowsTest, NumbersOfSectionsLieAroundTheRequirement)
{
    const std::tuple<double, int, int> cases[] = {
        {1000, 7, 24},   // 400 W / 65 W = 6.15 and 1600 W / 65 W = 24.6
        {260, 1, 13},    // four sections fit, so the thirteen smallest
        {3250, 20, 50},  // fifty fit; 40 % is twenty
        {20000, 38, 50}, // more than fifty give: the thirteen largest
    };
    for (const auto& [required, fewest, most] : cases) {
        EXPECT_EQ(Lengths(kSections, required),
                  WithEnds(75, Steps(30 + 45 * fewest, 30 + 45 * most, 45), 2280))
            << required;
    }
}

TEST_F(CCatalogueRowsTest, AProductWithFewSizesHasThemAll)
{
    EXPECT_EQ(Lengths("700;1;G;S;600;101;65;1.28;0.9\n710.03;45;3\n", 5000),
              (std::vector<double>{45, 90, 135}));
    EXPECT_EQ(Lengths("700;1;Z;M;600;100;1000;1.3;5\n710.02;500;740;100\n", 5000),
              (std::vector<double>{500, 600, 700}));
}

TEST_F(CCatalogueRowsTest, StandardLengthsStayWhateverTheRequirement)
{
    const std::string standard =
        "700;1;N;M;600;100;1000;1.3;5\n710.01;1;450\n710.01;2;1000\n710.01;3;2900\n";
    EXPECT_EQ(Lengths(standard, 1000), (std::vector<double>{450, 1000, 2900}));
    EXPECT_EQ(Lengths(standard, 20000), (std::vector<double>{450, 1000, 2900}));

    // With cuts of 400 to 1600 mm and of 3000 mm: rising, and 1000 mm only once.
    std::vector<double> both = Steps(400, 1600, 100);
    both.insert(both.begin() + 1, 450);
    both.push_back(2900);
    both.push_back(3000);
    EXPECT_EQ(Lengths(standard + "710.02;400;3000;100\n", 1000), both);
}

TEST_F(CCatalogueRowsTest, EachSeriesStartsShortAgainAndGivesItsSizesToTheProduct)
{
    EXPECT_EQ(Lengths("700;1;A;M;900;155;1000;1.3;5\n710.01;1;500\n710.01;2;900\n"
                      "700;2;B;M;300;61;1000;1.3;5\n710.01;1;400\n710.01;2;600\n"
                      "700;3;C;M;600;61;1000;1.3;5\n710.01;1;400\n",
                      1000),
              (std::vector<double>{500, 900, 400, 600, 400}));
    const HK_VDI3805_PRODUKT& produkt = *Produkt(L"Prova");
    OCArray<double> hoehen;
    OCArray<double> tiefen;
    for (const double hoehe : {300.0, 600.0, 900.0}) {
        hoehen.Add(hoehe);
    }
    for (const double tiefe : {61.0, 155.0}) {
        tiefen.Add(tiefe);
    }
    EXPECT_EQ(produkt.Hoehen, hoehen);
    EXPECT_EQ(produkt.Tiefen, tiefen);
}

TEST_F(CCatalogueRowsTest, OutputStaysAsStatedAndContentIsThatOfTheRow)
{
    struct Row
    {
        double output, content, elements;
    };
    const std::tuple<std::string, wchar_t, std::vector<Row>> cases[] = {
        // 6.3 l/m over 0.5 m and 2 m.
        {"700;1;T;M;600;102;1700;1.33;6.3\n710.01;1;500\n710.01;2;2000\n",
         L'M',
         {{1700, 3.15, 0}, {1700, 12.6, 0}}},
        {"700;1;T;m;600;102;1700;1.33;6.3\n710.01;1;500\n", L'm', {{1700, 3.15, 0}}},
        // 0.4 l a section.
        {"700;1;T;S;580;97;130;1.3;0.4\n710.03;80;3\n",
         L'S',
         {{130, 0.4, 1}, {130, 0.8, 2}, {130, 1.2, 3}}},
        {"700;1;T;s;580;97;130;1.3;0.4\n710.03;80;1\n", L's', {{130, 0.4, 1}}},
        // Units: what the size states, else what the series states; nothing is scaled.
        {"700;1;T;E;1180;32;500;1.25;5\n710.01;1;450\n710.01;2;600;640;6.2\n710.01;3;750;;7.5\n",
         L'E',
         {{500, 5, 0}, {640, 6.2, 0}, {500, 7.5, 0}}},
    };
    for (const auto& [series, bauart, expected] : cases) {
        SCOPED_TRACE(series);
        Lengths(series, 260);
        const auto rows = Rows(*Produkt(L"Prova"));
        ASSERT_EQ(rows.size(), expected.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(rows[i]->Daten.LeistungEN442, expected[i].output);
            EXPECT_DOUBLE_EQ(rows[i]->Daten.Inhalt, expected[i].content);
            EXPECT_EQ(rows[i]->Daten.Elemente, expected[i].elements);
            EXPECT_EQ(rows[i]->Daten.Bauart, bauart);
        }
    }
}

TEST_F(CCatalogueRowsTest, AnArticleNamesItsOwnRowOnly)
{
    Lengths("700;7;Serie;M;600;102;1700;1.33;6.3\n710.01;1;500\n710.01;2;1000\n710.01;3;1500\n"
            "800;7;1000;ORD-1;Pezzo\n800;7;1500;ORD-2\n800;7;777;ORD-3;Nessuno\n",
            1000);
    auto rows = Rows(*Produkt(L"Prova"));
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0]->Name, L"Serie");
    EXPECT_EQ(rows[1]->Name, L"Pezzo");
    EXPECT_EQ(rows[2]->Name, L"Serie");

    Lengths(std::string(kSections).append("800;1;8;ORD-8;Otto elementi\n"), 1000);
    rows = Rows(*Produkt(L"Prova"));
    ASSERT_GE(rows.size(), 3u);
    EXPECT_EQ(rows[1]->Name, L"G");
    EXPECT_EQ(rows[2]->Name, L"Otto elementi");
}
