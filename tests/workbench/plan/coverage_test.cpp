#include "workbench/plan/coverage.h"

#include "platform/encoding.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/plan/room_selection.h"

namespace workbench {

namespace {

using CoverageTest = CPlanFixture;

} // namespace

TEST_F(CoverageTest, OutputsMayMissTheNeedByTenPerCentAndExceedItByTheLimitOfTheBuilding)
{
    const struct
    {
        double bedarf, gedeckt;
        std::vector<double> outputs;
        Coverage coverage;
        double remainder;
        double limit = kUsualExcess;
    } cases[] = {
        {1000, 0, {}, Coverage::empty, 1000},
        {1000, 0, {899}, Coverage::lacking, 101},
        {1000, 0, {900}, Coverage::covered, 100},
        {1000, 200, {400, 320}, Coverage::covered, 80}, // 720 of 800 W
        {1000, 200, {400, 319}, Coverage::lacking, 81},
        {1000, 0, {1150}, Coverage::covered, -150},
        {1000, 0, {600, 551}, Coverage::oversized, -151},
        {1000, 200, {920}, Coverage::covered, -120}, // 15 % of 800 W
        {1000, 200, {921}, Coverage::oversized, -121},
        {1000, 0, {1151}, Coverage::covered, -151, 20.0},
        {1000, 0, {1001}, Coverage::oversized, -1, 0.0},
        {1000, 1000, {}, Coverage::notNeeded, 0},
        {0, 0, {500}, Coverage::notNeeded, -500},
    };
    for (const auto& test : cases) {
        m_building.ueberschussMax = test.limit;
        CRoom room = Room(L"Sala", test.bedarf);
        room.gedeckt = test.gedeckt;
        for (const double output : test.outputs) {
            room.heizkoerper.push_back(Radiator(output));
        }
        EXPECT_EQ(CoverageOf(m_building, room), test.coverage) << test.remainder;
        EXPECT_EQ(RemainderOf(room), test.remainder);
    }
}

TEST_F(CoverageTest, WhatSizingWouldNotTakeForAPlaceIsTooLargeForIt)
{
    // The radiator of 1000 W is 600 by 100 by 1000 mm. Radiators keep 100 mm to the floor and 80 mm
    // to a sill.
    const struct
    {
        CRadiatorPlace place;
        double tiefeMin, tiefeMax;
        const wchar_t* excess;
    } cases[] = {
        {{PlaceKind::window, 780.0, 1000.0}, 0.0, 200.0, L""},
        {{PlaceKind::window, 779.0, 1000.0}, 0.0, 200.0, L"altezza 600 mm, consentiti 599 mm"},
        {{PlaceKind::wall, 700.0, 1000.0}, 0.0, 200.0, L""},
        {{PlaceKind::wall, 699.0, 1000.0}, 0.0, 200.0, L"altezza 600 mm, consentiti 599 mm"},
        {{PlaceKind::wall, 900.0, 999.0}, 0.0, 200.0, L"lunghezza 1000 mm, consentiti 999 mm"},
        {{PlaceKind::wall, 900.0, 1000.0}, 0.0, 99.5, L"profondità 100 mm, consentiti 99,5 mm"},
        {{PlaceKind::wall, 900.0, 1000.0},
         101.0,
         200.0,
         L"profondità 100 mm, richiesti almeno 101 mm"},
        {{PlaceKind::wall, 600.0, 900.0},
         100.0,
         100.0,
         L"altezza 600 mm, consentiti 500 mm; lunghezza 1000 mm, consentiti 900 mm"},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(Utf8FromWide(test.excess));
        CRoom room = Room(L"Sala", 1000.0);
        room.grenzen.tiefeMin = test.tiefeMin;
        room.grenzen.tiefeMax = test.tiefeMax;
        room.plaetze.push_back(test.place); // beside one that is large enough
        const bool fits = *test.excess == L'\0';
        const CRoomOutcome sized =
            SelectRadiator(WishForPlace(m_building, m_building.floors[0], room, 1));
        EXPECT_EQ(sized.status == RoomStatus::chosen, fits);

        for (const double output : {1000.0, 300.0}) {
            room.heizkoerper = {Radiator(output)};
            room.heizkoerper[0].nPlatz = 1;
            const Coverage coverage = CoverageOf(m_building, room);
            EXPECT_EQ(coverage == Coverage::tooLarge, !fits);
            EXPECT_EQ(IsOpen(coverage), !fits || output < 900.0);
            EXPECT_EQ(DescribeExcess(m_building, room, room.heizkoerper[0]), test.excess);
            EXPECT_NE(DescribeCoverage(m_building, room).find(fits ? L"" : test.excess),
                      CString::npos);
        }
    }
}

} // namespace workbench
