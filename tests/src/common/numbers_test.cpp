#include "common/numbers.h"
#include "platform/rounding.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr float kFloatNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kFloatInfinity = std::numeric_limits<float>::infinity();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

TEST(NumberText, RoundToGivesTheNearestMultipleAndHalvesGoUpward)
{
    const std::tuple<double, double, double> cases[] = {
        {2.5, 1.0, 3.0},        {-2.5, 1.0, -2.0}, {-2.51, 1.0, -3.0}, {2.49, 1.0, 2.0},
        {1237.0, 50.0, 1250.0}, {2.7, 0.0, 2.7},   {2.7, -1.0, 2.7},   {2.7, kNan, 2.7},
    };
    for (const auto& [value, step, expected] : cases) {
        EXPECT_DOUBLE_EQ(RoundTo(value, step), expected) << value << " to " << step;
    }
    EXPECT_DOUBLE_EQ(RoundTo(0.0056, 0.001), 0.006);
}

TEST(NumberText, RoundToIntWorksInSinglePrecisionAndStaysInTheRange)
{
    const std::pair<float, int> cases[] = {
        {2.5F, 3},
        {-2.5F, -2},
        {33.333332F, 33},
        // In single precision the half added to this one makes a whole 1.
        {0.49999997F, 1},
        {2147483520.0F, 2147483520},
        {2147483648.0F, kIntMax},
        {-2147483648.0F, kIntMin},
        {kFloatInfinity, kIntMax},
        {-kFloatInfinity, kIntMin},
        {kFloatNan, 0},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(RoundToInt(value), expected) << value;
    }
}

TEST(NumberText, ParseNumberTakesCommaAndPointAndIgnoresTheRest)
{
    const std::pair<CString, double> cases[] = {
        {L"1,25", 1.25},     {L"1.25", 1.25}, {L"1.234,5", 1.234}, {L"1,234.5", 1.234},
        {L"  -0,5 m", -0.5}, {L",5", 0.5},    {L"600mm", 600.0},   {L"", 0.0},
        {L"m 5", 0.0},       {L",", 0.0},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_DOUBLE_EQ(ParseNumber(text), expected) << ::testing::PrintToString(text);
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
    const std::tuple<double, int, CString> cases[] = {
        {2.5, 9, L"2.500000"}, {2.5, 5, L"2.500000"}, {2.5, 4, L"2.5000"},
        {2.5, 3, L"2.500"},    {2.5, 2, L"2.50"},     {2.5, 1, L"2.5"},
        {2.6, 0, L"3"},        {2.5, -1, L"2.50"},    {-1234.5678, 2, L"-1234.57"},
    };
    for (const auto& [value, decimals, expected] : cases) {
        EXPECT_EQ(FormatNumber(value, decimals), expected) << decimals;
    }
}

} // namespace
