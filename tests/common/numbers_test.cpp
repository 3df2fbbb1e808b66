#include "common/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr float kFloatNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kFloatInfinity = std::numeric_limits<float>::infinity();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

TEST(NumberText, RoundToGivesTheNearestMultipleAndHalvesGoUpward)
{
    struct Case
    {
        double value;
        double step;
        double expected;
    };
    for (const Case& c : {
             Case{2.5, 1.0, 3.0},
             Case{-2.5, 1.0, -2.0},
             Case{-2.51, 1.0, -3.0},
             Case{2.49, 1.0, 2.0},
             Case{1237.0, 50.0, 1250.0},
             Case{2.7, 0.0, 2.7},
             Case{2.7, -1.0, 2.7},
             Case{2.7, kNan, 2.7},
         }) {
        EXPECT_DOUBLE_EQ(RoundTo(c.value, c.step), c.expected) << c.value << " to " << c.step;
    }
    EXPECT_DOUBLE_EQ(RoundTo(0.0056, 0.001), 0.006);
}

TEST(NumberText, RoundToIntWorksInSinglePrecisionAndStaysInTheRange)
{
    struct Case
    {
        float value;
        int expected;
    };
    for (const Case& c : {
             Case{2.5F, 3},
             Case{-2.5F, -2},
             Case{33.333332F, 33},
             // In single precision the half added to this one makes a whole 1.
             Case{0.49999997F, 1},
             Case{2147483520.0F, 2147483520},
             Case{2147483648.0F, kIntMax},
             Case{-2147483648.0F, kIntMin},
             Case{-1e20F, kIntMin},
             Case{kFloatInfinity, kIntMax},
             Case{-kFloatInfinity, kIntMin},
             Case{kFloatNan, 0},
         }) {
        EXPECT_EQ(RoundToInt(c.value), c.expected) << c.value;
    }
}

TEST(NumberText, ParseNumberTakesCommaAndPointAndIgnoresTheRest)
{
    struct Case
    {
        CString text;
        double expected;
    };
    for (const Case& c : {
             Case{L"1,25", 1.25},
             Case{L"1.25", 1.25},
             Case{L"1.234,5", 1.234},
             Case{L"1,234.5", 1.234},
             Case{L"  -0,5 m", -0.5},
             Case{L",5", 0.5},
             Case{L"600mm", 600.0},
             Case{L"", 0.0},
             Case{L"m 5", 0.0},
             Case{L",", 0.0},
         }) {
        EXPECT_DOUBLE_EQ(ParseNumber(c.text), c.expected) << ::testing::PrintToString(c.text);
    }
}

TEST(NumberText, CommaToPointReplacesEveryComma)
{
    CString text = L",1,2.3,";
    CommaToPoint(text);
    EXPECT_EQ(text, L".1.2.3.");
}

TEST(NumberText, FormatNumberKnowsNoFormWithFiveDecimals)
{
    struct Case
    {
        double value;
        int decimals;
        CString expected;
    };
    for (const Case& c : {
             Case{2.5, 9, L"2.500000"},
             Case{2.5, 6, L"2.500000"},
             Case{2.5, 5, L"2.500000"},
             Case{2.5, 4, L"2.5000"},
             Case{2.5, 3, L"2.500"},
             Case{2.5, 2, L"2.50"},
             Case{2.5, 1, L"2.5"},
             Case{2.6, 0, L"3"},
             Case{2.5, -1, L"2.50"},
             Case{2.5, kIntMin, L"2.50"},
             Case{-1234.5678, 2, L"-1234.57"},
         }) {
        EXPECT_EQ(FormatNumber(c.value, c.decimals), c.expected) << c.decimals;
    }
}

} // namespace
