#include "platform/number_scan.h"

#include "platform/text.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Numbers, WholeNumberIsWhatStandsAtTheStart)
{
    const std::pair<const wchar_t*, int> cases[] = {
        {L"", 0},
        {L"  \t-7abc", -7},
        {L"+5", 5},
        {L"+-5", 0},
        {L"3,9", 3},
        {L"0x1F", 0},
        {L"2147483647", INT_MAX},
        {L"2147483648", INT_MAX},
        {L"-2147483648", INT_MIN},
        {L"-99999999999999999999999", INT_MIN},
        {L"99999999999999999999999", INT_MAX},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(_wtoi(text), expected) << text;
    }
}

TEST(Numbers, RealNumberIsWhatStandsAtTheStart)
{
    const std::pair<const wchar_t*, double> cases[] = {
        {L"", 0.0},
        {L" \r\n 2", 2.0},
        {L"-0.25x", -0.25},
        {L".5", 0.5},
        {L"5.", 5.0},
        {L".", 0.0},
        {L"1,5", 1.0},
        {L"1.234.5", 1.234},
        {L"1e3", 1000.0},
        {L"1e", 1.0},
        {L"2E-2kg", 0.02},
        {L"e5", 0.0},
        {L"0x10", 0.0},
        {L"inf", 0.0},
        {L"1e400", kInfinity},
        {L"-1e400", -kInfinity},
        {L"1e-400", 0.0},
        {L"0e999999999999999999999", 0.0},
        {L"1e99999999999999999999999", kInfinity},
        {L"1e-99999999999999999999", 0.0},
        {L"4.9406564584124654e-324", 4.9406564584124654e-324},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(_wtof(text), expected) << text;
    }
    EXPECT_TRUE(std::signbit(_wtof(L"-0")));
    for (const wchar_t* text : {L"-", L"-abc", L"- 5", L"-."}) {
        EXPECT_FALSE(std::signbit(_wtof(text))) << "no digit, no sign: " << text;
    }
}

TEST(Numbers, LongDigitRunsKeepTheirMagnitude)
{
    // 400 digits behind a first one would overflow; an exponent brings them back into range.
    const CString zeros(400, L'0');
    EXPECT_EQ(_wtof(L"1" + zeros), kInfinity);
    EXPECT_DOUBLE_EQ(_wtof(L"1" + zeros + L"e-400"), 1.0);
    EXPECT_EQ(_wtof(L"0." + zeros + L"1"), 0.0);
    EXPECT_DOUBLE_EQ(_wtof(L"0." + zeros + L"1e401"), 1.0);
}

TEST(Numbers, ScanCountsTheSignButNotLeadingBlanks)
{
    struct Case
    {
        const wchar_t* text;
        std::size_t position;
        int width;
        bool found;
        short value;
    };
    const Case cases[] = {
        {L"123456", 0, 2, true, 12}, {L"123456", 4, 2, true, 56}, {L"123456", 2, 4, true, 3456},
        {L"  789", 0, 2, true, 78},  {L"-12", 0, 2, true, -1},    {L"+7", 0, 2, true, 7},
        {L"5x", 0, 2, true, 5},      {L"x5", 0, 2, false, 99},    {L"-x", 0, 2, false, 99},
        {L"-", 0, 2, false, 99},     {L"", 0, 2, false, 99},      {L"12", 2, 2, false, 99},
        {L"   ", 0, 2, false, 99},   {L"12", 7, 2, false, 99},
    };
    for (const Case& c : cases) {
        short value = 99;
        EXPECT_EQ(ScanShort(c.text, c.position, c.width, value), c.found) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
}

} // namespace
