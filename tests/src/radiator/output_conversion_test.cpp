#include "radiator/output_conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>

namespace {

// A factor is a whole count times 0.001, so that its last bit depends on the product.
constexpr double kTolerance = 1e-9;

TEST(OutputConversion, FactorsOfUsualSystems)
{
    struct Case
    {
        double vorlauf, ruecklauf, raum, factor;
    };
    const Case cases[] = {
        {75, 65, 20, 1.000},
        {90, 70, 20, 1.244},
        {70, 55, 20, 0.784},
        {60, 40, 22, 0.413},
        {55, 45, 20, 0.495},
        {45, 35, 20, 0.279},
        {0, 65, 20, 1.0},
        {75, -1, 20, 1.0},
        // No difference left to the room: it counts as 1 K, (1 / 48.891)^1.33 = 0.0057.
        {75, 0, 20, 1.0},
        {75, 20, 20, 0.006},
        {75, 15, 20, 0.006},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(GetLeistungsFaktor(c.vorlauf, c.ruecklauf, c.raum), c.factor, kTolerance)
            << c.vorlauf << '/' << c.ruecklauf << '/' << c.raum;
    }
    for (const double equal : {50.0, 25.61, 54.447687645684283}) {
        EXPECT_TRUE(std::isnan(GetLeistungsFaktor(equal, equal, 20))) << "no spread, no logarithm";
    }
}

TEST(OutputConversion, StandardTemperaturesGiveOneWithAnyParameters)
{
    for (const double divisor : {0.0, 0.05, 0.1, 1.0, 1.25, 4.0}) {
        for (const double exponent : {0.0, 0.5, 1.2, 1.4}) {
            EXPECT_EQ(GetLeistungsFaktorEx(75, 65, 20, divisor, exponent), 1.0);
        }
    }
}

TEST(OutputConversion, TheDifferenceIsALogarithmicMeanOfADrawnSpread)
{
    // t = 65 + 0.8 * 10 = 73; (73 - 65) / ln(53 / 45) = 8 / 0.163629 = 48.891.
    EXPECT_NEAR(GetTemperaturDifferenz(75, 65, 20, 0.0), 48.891, 0.0005);
    EXPECT_NEAR(GetTemperaturDifferenz(75, 65, 20, 0.05), 48.891, 0.0005) << "below 0.1: default";
    // A divisor of 1 leaves the supply temperature alone: 10 / ln(55 / 45) = 49.833.
    EXPECT_NEAR(GetTemperaturDifferenz(75, 65, 20, 1.0), 49.833, 0.0005);
    // 0.1 is used as it stands: t = (-0.9 * 65 + 75) / 0.1 = 165; 100 / ln(145 / 45) = 85.465.
    EXPECT_NEAR(GetTemperaturDifferenz(75, 65, 20, 0.1), 85.465, 0.0005);
    EXPECT_EQ(GetTemperaturDifferenz(75, 20, 20, 0.0), 1.0);
    EXPECT_EQ(GetTemperaturDifferenz(0, 65, 20, 0.0), 1.0);
    EXPECT_EQ(GetTemperaturDifferenz(75, -1, -20, 0.0), 1.0);
}

TEST(OutputConversion, DivisorAndExponentAreUsedOnBothDifferences)
{
    // Plain logarithmic means: 55/45/20 has 10 / ln(35 / 25) = 29.720, 75/65/20 has 49.833.
    EXPECT_NEAR(GetLeistungsFaktorEx(55, 45, 20, 1.0, 1.0), 0.596, kTolerance);
    // 0.596386^1.5 = 0.460568; an exponent of 0.1 is used as it stands, 0.596386^0.1 = 0.949627.
    EXPECT_NEAR(GetLeistungsFaktorEx(55, 45, 20, 1.0, 1.5), 0.461, kTolerance);
    EXPECT_NEAR(GetLeistungsFaktorEx(55, 45, 20, 1.0, 0.1), 0.950, kTolerance);
}

TEST(OutputConversion, TheGuideForHostsTellsWhatIsComputed)
{
    std::ifstream guide(RADSEL_SOURCE_DIR "/docs/host-programmer.md");
    const double rooms[] = {15, 18, 20, 22, 24};
    int systems = 0;
    for (std::string line; std::getline(guide, line);) {
        std::istringstream row(line);
        char mark = 0;
        char slash = 0;
        double supply = 0.0;
        double back = 0.0;
        if (!(row >> mark >> supply >> slash >> back) || mark != '|' || slash != '/') {
            continue;
        }
        ++systems;
        for (const double room : rooms) {
            double told = 0.0;
            row >> mark >> told;
            EXPECT_NEAR(told, GetLeistungsFaktor(supply, back, room), kTolerance) << line;
        }
    }
    EXPECT_EQ(systems, 12);
}

} // namespace
