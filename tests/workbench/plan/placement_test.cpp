#include "workbench/plan/placement.h"

#include "tests/workbench/plan/plan_fixture.h"

namespace workbench {

namespace {

using PlacementTest = CPlanFixture;

} // namespace

TEST_F(PlacementTest, RadiatorsStandBackToTheirWallInTheMiddleOfThePlace)
{
    // The room reaches from (1, 2) to (6, 6). The place begins 0.5 m from the wall's western or
    // southern end and is 2 m wide; the radiator, 100 mm deep, stands 50 mm from the wall.
    const struct
    {
        Wall wand;
        CPlaceLine line;
        double x, y, winkel;
    } cases[] = {
        {Wall::sued, {1.5, 2.0, 3.5, 2.0}, 2.5, 2.1, 0.0},
        {Wall::ost, {6.0, 2.5, 6.0, 4.5}, 5.9, 3.5, 90.0},
        {Wall::nord, {3.5, 6.0, 1.5, 6.0}, 2.5, 5.9, 180.0},
        {Wall::west, {1.0, 4.5, 1.0, 2.5}, 1.1, 3.5, 270.0},
    };
    for (const auto& test : cases) {
        CRoom room = Room(L"Sala", 1000.0);
        room.plaetze.push_back({PlaceKind::wall, 900.0, 2000.0, test.wand, 500.0});
        const CPlaceLine line = LineOf(room, room.plaetze[1]);
        EXPECT_DOUBLE_EQ(line.dX1, test.line.dX1);
        EXPECT_DOUBLE_EQ(line.dY1, test.line.dY1);
        EXPECT_DOUBLE_EQ(line.dX2, test.line.dX2);
        EXPECT_DOUBLE_EQ(line.dY2, test.line.dY2);

        CPlacedRadiator radiator = Radiator(1000.0, 1200.0);
        radiator.nPlatz = 1;
        radiator.abstandWand = 0.05;
        radiator.abstandBoden = 0.12;
        const CRadiatorPose pose = PoseOf(room, radiator);
        EXPECT_DOUBLE_EQ(pose.dX, test.x);
        EXPECT_DOUBLE_EQ(pose.dY, test.y);
        EXPECT_DOUBLE_EQ(pose.dWinkel, test.winkel);
        EXPECT_DOUBLE_EQ(pose.dLaenge, 1.2);
        EXPECT_DOUBLE_EQ(pose.dTiefe, 0.1);
        EXPECT_DOUBLE_EQ(pose.dHoehe, 0.6);
        EXPECT_DOUBLE_EQ(pose.dUeberBoden, 0.12);
    }
}

TEST_F(PlacementTest, NewRadiatorsTakeTheNarrowestPlaceThatTheyFit)
{
    // Below a sill of 900 mm there are 720 mm, before a wall of that height 800 mm.
    CRoom room = Room(L"Sala", 1000.0);
    room.plaetze = {
        {PlaceKind::wall, 900.0, 900.0, Wall::ost, 0.0},
        {PlaceKind::window, 900.0, 2000.0, Wall::sued, 0.0},
        {PlaceKind::window, 900.0, 1200.0, Wall::nord, 0.0},
        {PlaceKind::wall, 900.0, 800.0, Wall::west, 0.0},
    };
    const struct
    {
        double hoehe, laenge;
        std::vector<std::size_t> taken;
        std::optional<std::size_t> expected;
    } cases[] = {
        {720, 1200, {}, 2},    // just fits the narrow window
        {720, 1201, {}, 1},    // 1 mm too long for it
        {721, 800, {}, 3},     // too high for windows; the narrower wall
        {600, 500, {2}, 1},    // windows before walls
        {600, 500, {1, 2}, 3}, // no window left
        {600, 3000, {0}, 1},   // fits nowhere: the first free one
        {600, 500, {0, 1, 2, 3}, std::nullopt},
    };
    for (const auto& test : cases) {
        CRoom furnished = room;
        for (const std::size_t place : test.taken) {
            furnished.heizkoerper.push_back(Radiator(500.0));
            furnished.heizkoerper.back().nPlatz = place;
        }
        HK_DATEN_VDI3805 daten = Radiator(1000.0, test.laenge).daten;
        daten.Hoehe = test.hoehe;
        EXPECT_EQ(FindFreePlace(furnished, {100.0, 80.0}, daten), test.expected)
            << test.hoehe << " x " << test.laenge;
    }
}

} // namespace workbench
