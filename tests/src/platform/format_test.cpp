#include "platform/format.h"

#include "platform/number_scan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <string>
#include <utility>

namespace {

TEST(Format, FixedNumbersFillTheirWidthAndHaveNamesWhereNotFinite)
{
    EXPECT_EQ(FormatFixed(3.14159, 1, 6), L"   3.1");
    EXPECT_EQ(FormatFixed(1234567.0, 1, 4), L"1234567.0");
    EXPECT_EQ(FormatFixed(std::nan(""), 1), L"nan");
    EXPECT_EQ(FormatFixed(-std::numeric_limits<double>::infinity(), 1), L"-inf");
    EXPECT_EQ(FormatFixed(-std::numeric_limits<double>::max(), 9).size(), 1U + 309U + 1U + 9U);
}

TEST(Format, FixedNumbersAreTheDecimalsNearestToTheDouble)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> units(-2'000'000, 2'000'000);
    char expected[64];
    for (int i = 0; i < 20000; ++i) {
        // Halves of the last place, the doubles beside them, and numbers anywhere.
        const int decimals = i % 10;
        const double half = units(random) / std::pow(10.0, decimals) / 2.0;
        for (const double value : {half, std::nextafter(half, 1e9), std::nextafter(half, -1e9),
                                   half / 7.0, half * 1e9}) {
            std::snprintf(expected, sizeof expected, "%.*f", decimals, value);
            ASSERT_EQ(FormatFixed(value, decimals),
                      CString(expected, expected + std::strlen(expected)))
                << FormatExact(value);
        }
    }
}

TEST(Format, NothingDependsOnTheLocale)
{
    // A locale of the test's own: machines need not have one that writes a comma.
    class CComma : public std::numpunct<wchar_t>
    {
        wchar_t do_decimal_point() const override { return L','; }
        wchar_t do_thousands_sep() const override { return L'.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale(), new CComma));
    EXPECT_EQ(FormatFixed(1234.5, 1), L"1234.5");
    EXPECT_EQ(FormatExact(1234.5), L"1234.5");
    EXPECT_EQ(FormatInt(1234567), L"1234567");
    EXPECT_EQ(_wtof(L"1234.5"), 1234.5);
    std::locale::global(before);
}

TEST(Format, PlainNumbersHaveNoExponentAndAtMostFifteenDigits)
{
    const std::pair<double, const wchar_t*> cases[] = {
        {100000.0, L"100000"},
        {75.4, L"75.4"},
        {0.0, L"0"},
        {1733.3333333333333, L"1733.33333333333"},
        {0.1 + 0.2, L"0.3"},
        {-999999999999999.9, L"-1000000000000000"},
        {1e-7 / 3.0, L"0.0000000333333333333333"},
        {std::nan(""), L"nan"},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(FormatPlain(value), text);
    }
    using Limits = std::numeric_limits<double>;
    EXPECT_EQ(FormatPlain(Limits::max()).size(), 309U) << "rounding finds no larger one";
    EXPECT_EQ(FormatPlain(Limits::denorm_min()).size(), 326U);
}

} // namespace
