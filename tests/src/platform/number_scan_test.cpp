#include "platform/number_scan.h"

#include "platform/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <climits>
#include <cstdint>
#include <cwchar>
#include <random>
#include <string_view>
#include <utility>

namespace {

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
        EXPECT_EQ(_wtoi(std::wstring_view(text)), expected) << text;
    }
}

/// As the standard library's conversion in its plain locale has it, to the last bit. Where there is
/// no number some libraries give the sign to the zero that stands for it.
void ExpectAsInTheLibrary(const CString& text)
{
    wchar_t* end = nullptr;
    const double value = std::wcstod(text.c_str(), &end);
    const double expected = end == text.c_str() ? 0.0 : value;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(_wtof(text)), std::bit_cast<std::uint64_t>(expected))
        << ::testing::PrintToString(text);
}

TEST(Numbers, RealNumberIsWhatStandsAtTheStart)
{
    EXPECT_EQ(_wtof(CString(L" \r\n -2E-2kg")), -0.02);
    EXPECT_EQ(_wtof(CString(L"1,5")), 1.0);
    for (const CString text : {L"0x10", L"inf", L"nan"}) {
        EXPECT_EQ(_wtof(text), 0.0) << "only here the library goes further: " << text;
    }
    // 400 digits behind a first one would overflow; an exponent brings them back into range.
    const CString zeros(400, L'0');
    const CString many = L"99999999999999999999999";
    const CString edges[] = {L"1e400",
                             L"-1e400",
                             L"1e-400",
                             L"4.9406564584124654e-324",
                             L"0e" + many,
                             L"1e" + many,
                             L"1e-" + many,
                             L"1" + zeros + L"e-400",
                             L"1" + zeros,
                             L"-.",
                             L"- 5",
                             L"0." + zeros + L"1e401",
                             L"0." + zeros + L"1"};
    std::ranges::for_each(edges, ExpectAsInTheLibrary);
}

TEST(Numbers, RealNumbersOfAnyFormComeOutAsInTheLibrary)
{
    // Signs, points and exponents in places of all kinds, most of them wrong.
    constexpr std::wstring_view kCharacters = L"0123456789123456789..--+eE ,x";
    std::mt19937 random(7);
    for (int round = 0; round < 100000 && !testing::Test::HasFailure(); ++round) {
        CString text(1 + random() % 9, L'\0');
        for (wchar_t& c : text) {
            c = kCharacters[random() % kCharacters.size()];
        }
        if (text.find(L"0x") == CString::npos) {
            ExpectAsInTheLibrary(text);
        }
    }
}

TEST(Numbers, ScanCountsTheSignButNotLeadingBlanks)
{
    const struct
    {
        const wchar_t* text;
        std::size_t position;
        int width;
        bool found;
        short value;
    } cases[] = {
        {L"123456", 0, 2, true, 12}, {L"123456", 4, 2, true, 56}, {L"123456", 2, 4, true, 3456},
        {L"  789", 0, 2, true, 78},  {L"-12", 0, 2, true, -1},    {L"+7", 0, 2, true, 7},
        {L"5x", 0, 2, true, 5},      {L"x5", 0, 2, false, 99},    {L"-x", 0, 2, false, 99},
        {L"-", 0, 2, false, 99},     {L"", 0, 2, false, 99},      {L"12", 2, 2, false, 99},
        {L"   ", 0, 2, false, 99},   {L"12", 7, 2, false, 99},
    };
    for (const auto& c : cases) {
        short value = 99;
        EXPECT_EQ(ScanShort(c.text, c.position, c.width, value), c.found) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
}

} // namespace
