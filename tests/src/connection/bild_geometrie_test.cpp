#include "connection/bild_geometrie.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

namespace {

TEST(BildGeometrie, PointsLieInTheFrontViewWithTheirOffsetThreefold)
{
    const CRect bild{12, 12, 212, 113}; // 200 x 101 around (112, 62)
    const std::tuple<ConnVector, ConnVector, CPoint> cases[] = {
        {{0, 0, 0}, {0, 0, 0}, {112, 62}},
        // u = -0.5, v = 0.5 - 0.09 = 0.41: 101 * 0.41 = 41.41.
        {{-0.5, 0, 0.5}, {0, 0, -0.03}, {12, 21}},
        // u = 0.5 - 0.18 = 0.32, v = -0.5: -50.5 is cut to -50.
        {{0.5, 0, -0.5}, {-0.06, 0, 0}, {176, 112}},
        // The depth is not drawn; -0.6 and 0.6 of a pixel are cut towards zero on both axes.
        {{-0.003, 9, 0.006}, {0, 9, 0}, {112, 62}},
        {{NAN, 0, INFINITY}, {0, 0, 0}, {112, 62 - 1000000000}},
    };
    for (const auto& [position, offset, expected] : cases) {
        EXPECT_EQ(PunktAufBild(bild, position, offset), expected);
    }
}

TEST(BildGeometrie, ArrowsShowTheFlowInThePipe)
{
    struct Case
    {
        double winkel1, winkel2;
        Pfeil vorlauf, ruecklauf;
    };
    const Case cases[] = {
        {0, 0, Pfeil::links, Pfeil::rechts},    {180, 0, Pfeil::rechts, Pfeil::links},
        {0, 90, Pfeil::unten, Pfeil::oben},     {0, 270, Pfeil::oben, Pfeil::unten},
        {270, 0, Pfeil::links, Pfeil::links},   {300, 0, Pfeil::links, Pfeil::links},
        {89.9, 0, Pfeil::links, Pfeil::rechts}, {90, 0, Pfeil::links, Pfeil::links},
        {-200, 0, Pfeil::links, Pfeil::links},  {-90, 0, Pfeil::links, Pfeil::links},
        {0, 90.1, Pfeil::oben, Pfeil::unten},   {0, 271, Pfeil::unten, Pfeil::oben},
        {0, -90, Pfeil::oben, Pfeil::oben},     {0, -270, Pfeil::unten, Pfeil::oben},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Pfeilrichtung(c.winkel1, c.winkel2, true), c.vorlauf)
            << c.winkel1 << ';' << c.winkel2;
        EXPECT_EQ(Pfeilrichtung(c.winkel1, c.winkel2, false), c.ruecklauf)
            << c.winkel1 << ';' << c.winkel2;
    }
}

TEST(BildGeometrie, AnArrowIsAShaftWithTwoBarbsAtItsHead)
{
    const std::pair<Pfeil, std::vector<CStrich>> arrows[] = {
        {Pfeil::rechts, {{{41, 80}, {59, 80}, {54, 76}}, {{59, 80}, {54, 84}}}},
        {Pfeil::links, {{{41, 80}, {59, 80}}, {{41, 80}, {46, 76}}, {{41, 80}, {46, 84}}}},
        {Pfeil::unten, {{{50, 71}, {50, 89}, {46, 84}}, {{50, 89}, {54, 84}}}},
        {Pfeil::oben, {{{50, 89}, {50, 71}, {46, 76}}, {{50, 71}, {54, 76}}}},
        {static_cast<Pfeil>(4), {}},
    };
    for (const auto& [richtung, striche] : arrows) {
        EXPECT_EQ(PfeilStriche(richtung, {50, 80}), striche);
    }
}

} // namespace
