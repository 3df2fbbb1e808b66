#include "host/host_fittings.h"
#include "platform/encoding.h"
#include "tests/host_defaults/fittings/punkt_werte.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <deque>
#include <limits>
#include <random>
#include <tuple>
#include <vector>

namespace {

TEST(PunktText, ValuesAreReadInOrderUpToTheFirstPieceWithoutANumber)
{
    const std::pair<const wchar_t*, std::vector<double>> cases[] = {
        {L"", {}},
        {L";1;2;3", {}},
        {L"abc;1", {}},
        {L"-;1", {}},
        {L".;1", {}},
        {L"nan;1", {}},
        {L"1e999;1", {}},
        {L"0", {0}},
        {L"1;2;", {1, 2}},
        {L"1;;3", {1}},
        {L"1;x;3", {1}},
        {L"1,5;2 mm;+.5;-5.;1e-2;2e", {1, 2, 0.5, -5, 0.01, 2}},
        {L" \t-0.5 \t;\t0.0;  0;0;-0.5;  0.03; 180;0", {-0.5, 0, 0, 0, -0.5, 0.03, 180, 0}},
        {L"1;2;3;4;5;6;7;8;9;10;2;12", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 2, 12}},
        {L"1;2;3;4;5;6;7;8;9;10;2;12;13;14;", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 2, 12}},
    };
    for (const auto& [text, numbers] : cases) {
        SCOPED_TRACE(Utf8FromWide(text));
        PunktWerte werte;
        for (double* number : werte.Numbers()) {
            *number = 7;
        }
        werte.typ = 7;
        ASSERT_EQ(werte.Get(text), static_cast<int>(numbers.size()));
        // Untouched without a number at all, else 0 behind the last one.
        std::vector<double> expected = numbers;
        expected.resize(12, expected.empty() ? 7.0 : 0.0);
        EXPECT_EQ(werte.typ, static_cast<int>(expected[10]));
        expected.erase(expected.begin() + 10);
        expected.push_back(numbers.empty() ? 7.0 : 0.0);
        const std::vector<double*> read = werte.Numbers();
        for (std::size_t i = 0; i < read.size(); ++i) {
            EXPECT_EQ(*read[i], expected[i]) << i;
        }
    }
}

TEST(PunktText, TheCrossOverKindIsCutToAWholeNumberOfItsRange)
{
    const std::pair<const wchar_t*, int> cases[] = {
        {L"1.9", 1}, {L"-1.9", -1}, {L"3000000000", INT_MAX}, {L"-1e300", INT_MIN}, {L"2 x", 2}};
    for (const auto& [kind, expected] : cases) {
        PunktWerte werte;
        EXPECT_EQ(werte.Get(CString(L"0;0;0;0;0;0;0;0;0;0;") + kind), 11);
        EXPECT_EQ(werte.typ, expected);
    }
}

void ExpectRoundTrip(PunktWerte werte)
{
    werte.winkel[2] = 0.0;
    const CString text = werte.Set();
    EXPECT_LT(text.size(), 512U);
    PunktWerte read;
    ASSERT_EQ(read.Get(text), 12) << Utf8FromWide(text);
    EXPECT_EQ(read.typ, werte.typ);
    const std::vector<double*> expected = werte.Numbers();
    const std::vector<double*> numbers = read.Numbers();
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*numbers[i]),
                  std::bit_cast<std::uint64_t>(*expected[i]))
            << i << " of " << Utf8FromWide(text);
    }
}

TEST(PunktText, EveryFiniteValueReadsBackBitForBit)
{
    using Limits = std::numeric_limits<double>;
    for (const double value :
         {0.0, -0.0, 0.1, 1.0 / 3.0, Limits::max(), Limits::lowest(), Limits::min(), -Limits::min(),
          Limits::denorm_min(), -Limits::denorm_min(), std::nextafter(Limits::min(), 0.0), 1e23}) {
        PunktWerte werte;
        for (double* number : werte.Numbers()) {
            *number = value;
        }
        werte.typ = std::signbit(value) ? INT_MIN : INT_MAX;
        ExpectRoundTrip(werte);
    }
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937_64 random(seed);
    for (int round = 0; round < 5000 && !testing::Test::HasFailure(); ++round) {
        PunktWerte werte;
        for (double* number : werte.Numbers()) {
            do {
                *number = std::bit_cast<double>(random());
            } while (!std::isfinite(*number));
        }
        werte.typ = static_cast<int>(random());
        ExpectRoundTrip(werte);
    }
}

TEST(PunktText, WhatIsNoFiniteNumberReadsBackAsZero)
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()}) {
        PunktWerte werte;
        for (double* number : werte.Numbers()) {
            *number = value;
        }
        EXPECT_EQ(werte.Set(), PunktWerte().Set());
        EXPECT_EQ(werte.Get(werte.Set()), 12);
    }
}

/// A drawn radiator: its attributes in order, and its placement.
class AnschlussPunkte : public ::testing::Test
{
protected:
    void Add(const CString& name, const CString& wert)
    {
        m_links.push_back({name, wert, nullptr});
        if (m_links.size() > 1) {
            m_links[m_links.size() - 2].pNext = &m_links.back();
        }
    }

    /// 1.2 m long, 0.1 m deep, 0.6 m high.
    void AddSize()
    {
        Add(L"H_LAENGE", L"1.2");
        Add(L"H_TIEFE", L"0.1");
        Add(L"H_HOEHE", L"0.6");
    }

    std::vector<LM_APUNKT> Points(TgaGewerk gewerk = 0, const CString& name = {})
    {
        // A place more than there may be points, which must stay as it is.
        std::array<LM_APUNKT, kMaxAnschlussPunkte + 1> points;
        points.back().Wert = 99;
        const int count = lmGet_K_APUNKT_BLOCK_Wc(m_links.empty() ? nullptr : &m_links.front(),
                                                  points.data(), &m_trafo, gewerk, name);
        EXPECT_LE(count, kMaxAnschlussPunkte);
        EXPECT_EQ(points.back().Wert, 99);
        return {points.begin(), points.begin() + count};
    }

    std::deque<ALIST> m_links;
    LM_TRAFO m_trafo;
};

void ExpectPoint(const LM_APUNKT& point, TgaGewerk gewerk, const std::array<double, 3>& place,
                 const std::array<double, 3>& direction)
{
    EXPECT_EQ(point.Gewerk, gewerk);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(point.Punkt[i], place[i], 1e-9) << i;
        EXPECT_NEAR(point.Richtung[i], direction[i], 1e-12) << i;
    }
}

TEST_F(AnschlussPunkte, AndTheirPipeEndsFollowATurnedMovedAndScaledRadiator)
{
    // A drawing in millimetres; the radiator turned by 90 degrees about z, so that its x is the
    // drawing's y and its y the drawing's -x.
    m_trafo.Achsen = {{{0, 1000, 0}, {-1000, 0, 0}, {0, 0, 1000}}};
    m_trafo.Ursprung = {5000, 7000, 300};
    AddSize();
    // Local (0, 0, -0.3 - 0.05), along y: to the drawing's -x. The return stands first in the list
    // and comes last all the same; without a side distance its pipe ends there.
    Add(L"H_RL_PUNKT", L"0;0;0;0;-0.5;-0.05;90;0");
    // Local (0.5 * 1.2, 0.5 * 0.1 + 0.02, 0.5 * 0.6 - 0.03) = (0.6, 0.07, 0.27), the pipe end 0.05
    // further along x at (0.65, 0.07, 0.27).
    Add(L"H_VL_PUNKT", L"0.5;0;0.5;0.02;0.5;-0.03;0;0;0.05");
    const std::vector<LM_APUNKT> points = Points();
    ASSERT_EQ(points.size(), 4U);
    ExpectPoint(points[0], kGewerkVorlauf, {4930, 7600, 570}, {0, 1, 0});
    ExpectPoint(points[2], kGewerkVorlauf, {4930, 7650, 570}, {0, 1, 0});
    EXPECT_EQ(points[0].Wert, 0.05);
    ExpectPoint(points[1], kGewerkRuecklauf, {5000, 7000, -50}, {-1, 0, 0});
    ExpectPoint(points[3], kGewerkRuecklauf, {5000, 7000, -50}, {-1, 0, 0});
}

TEST_F(AnschlussPunkte, LeaveInTheDirectionOfTheirAngles)
{
    const double half = std::sqrt(0.5);
    const std::pair<const wchar_t*, std::array<double, 3>> cases[] = {
        {L"180;0", {-1, 0, 0}},
        {L"0;270", {0, 0, -1}},
        {L"90;0", {0, 1, 0}},
        {L"-90;0", {0, -1, 0}},
        {L"180;90", {0, 0, 1}},
        {L"45;0", {half, half, 0}},
        {L"540;0", {-1, 0, 0}},
        {L"0;45", {half, 0, half}},
        // cos 45 * (cos 135, sin 135) in the plane and sin 45 up.
        {L"135;45", {-0.5, 0.5, half}},
    };
    for (const auto& [winkel, direction] : cases) {
        SCOPED_TRACE(Utf8FromWide(winkel));
        m_links.clear();
        Add(L"H_VL_PUNKT", CString(L"0;0;0;0;0;0;") + winkel);
        const std::vector<LM_APUNKT> points = Points();
        ASSERT_EQ(points.size(), 2U);
        ExpectPoint(points[0], kGewerkVorlauf, {0, 0, 0}, direction);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_TRUE(direction[i] != 0 || points[0].Richtung[i] == 0) << "a stray share";
        }
    }
    // Axes without a length have no direction, and no not-a-number either.
    m_trafo.Achsen = {};
    ExpectPoint(Points()[0], kGewerkVorlauf, {0, 0, 0}, {0, 0, 0});
}

TEST_F(AnschlussPunkte, AreThoseOfTheTradeAndTheAttributeAskedFor)
{
    AddSize();
    Add(L"H_VL_PUNKT", L"0;1");
    Add(L"H_RL_PUNKT", L"0;2");
    const std::tuple<TgaGewerk, const wchar_t*, std::vector<TgaGewerk>> cases[] = {
        {0, L"", {kGewerkVorlauf, kGewerkRuecklauf}},
        {kGewerkVorlauf, L"", {kGewerkVorlauf}},
        {kGewerkRuecklauf, L"", {kGewerkRuecklauf}},
        {527, L"", {}},
        {0, L"H_VL_PUNKT", {kGewerkVorlauf}},
        {0, L"H_RL_PUNKT", {kGewerkRuecklauf}},
        {0, L"H_LAENGE", {}},
        {kGewerkVorlauf, L"H_VL_PUNKT", {kGewerkVorlauf}},
        {kGewerkVorlauf, L"H_RL_PUNKT", {}},
    };
    for (const auto& [gewerk, name, expected] : cases) {
        std::vector<TgaGewerk> trades;
        const std::vector<LM_APUNKT> points = Points(gewerk, name);
        for (std::size_t i = 0; i < points.size() / 2; ++i) {
            trades.push_back(points[i].Gewerk);
        }
        EXPECT_EQ(trades, expected) << gewerk << ' ' << Utf8FromWide(name);
    }
}

TEST_F(AnschlussPunkte, DoWithoutWhatIsMissing)
{
    EXPECT_TRUE(Points().empty()) << "no attributes at all";
    AddSize();
    EXPECT_TRUE(Points().empty()) << "no points";
    Add(L"H_VL_PUNKT", L"");
    Add(L"H_RL_PUNKT", L"presso la finestra");
    EXPECT_TRUE(Points().empty()) << "no numbers";

    m_links.clear();
    Add(L"H_LAENGE", L"2");
    Add(L"H_LAENGE", L"9");
    Add(L"H_RL_PUNKT", L"-0.5;0.1;0.5;0.2;0.5;0.3;0;90");
    const std::vector<LM_APUNKT> points = Points();
    ASSERT_EQ(points.size(), 2U);
    // Depth and height are unknown, so that only the offsets count there; of two lengths the first.
    ExpectPoint(points[0], kGewerkRuecklauf, {-0.9, 0.2, 0.3}, {0, 0, 1});
}

TEST_F(AnschlussPunkte, AreNeverMoreThanTheArrayHolds)
{
    for (int i = 0; i < 60; ++i) {
        Add(L"H_RL_PUNKT", L"0;" + std::to_wstring(i));
        if (i < 20) {
            Add(L"H_VL_PUNKT", L"0;" + std::to_wstring(100 + i));
        }
    }
    const std::vector<LM_APUNKT> points = Points();
    ASSERT_EQ(points.size(), 50U);
    // 20 flow points, then the first 5 return points; the pipe ends in the same order.
    for (const std::size_t first : {0U, 25U}) {
        EXPECT_EQ(points[first].Punkt[0], 100);
        EXPECT_EQ(points[first + 19].Punkt[0], 119);
        EXPECT_EQ(points[first + 20].Punkt[0], 0);
        EXPECT_EQ(points[first + 24].Punkt[0], 4);
    }
}

} // namespace
