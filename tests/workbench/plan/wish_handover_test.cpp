#include "workbench/plan/wish_handover.h"

#include "frame/entry_points.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/plan/room_selection.h"

namespace workbench {

namespace {

class WishHandoverTest : public CPlanFixture
{
protected:
    CRadiatorWish Wish(const CRoom& room, std::optional<std::size_t> radiator = {}) const
    {
        const CFloor& floor = m_building.floors[0];
        return radiator ? WishForRadiator(m_building, floor, room, *radiator)
                        : WishForRoom(m_building, floor, room);
    }
};

} // namespace

TEST_F(WishHandoverTest, AsksForWhatTheOtherRadiatorsLeave)
{
    CRoom sala = Room(L"Sala", 2000.0);
    sala.gedeckt = 300.0;
    sala.plaetze.push_back({PlaceKind::wall, 650.0, 1200.0, Wall::ost, 0.0});
    sala.plaetze.push_back({PlaceKind::wall, 900.0, 1800.0, Wall::nord, 0.0});
    sala.heizkoerper = {Radiator(1000.0), Radiator(400.0)};
    sala.heizkoerper[1].strProdukt = L"Tipo 11";
    sala.heizkoerper[1].nPlatz = 1;
    CRoom warm = sala;
    warm.gedeckt = 1500.0;
    const struct
    {
        const CRoom& room;
        std::optional<std::size_t> radiator;
        const wchar_t* produkt;
        double gedeckt, leistung, laengeMax, hoeheMin, hoeheMax, tiefeMax;
    } cases[] = {
        {sala, std::nullopt, L"Tipo 22", 1700, 300, 1800, 600, 600, 100},
        {sala, 0, L"Tipo 22", 700, 1300, 2000, 600, 600, 100},
        // 550 mm of height: the product, 600 mm high, has none within, and the range stays.
        {sala, 1, L"Tipo 11", 1300, 700, 1200, 0, 550, 60},
        // More is given than is asked for.
        {warm, std::nullopt, L"Tipo 22", 2000, 0, 1800, 600, 600, 100},
    };
    for (const auto& test : cases) {
        const HK_DATEN_VDI3805_UEBERGABE handover = FillHandover(Wish(test.room, test.radiator));
        EXPECT_EQ(handover.Raumname, L"Terra.Sala");
        EXPECT_EQ(handover.Produkt, test.produkt);
        EXPECT_EQ(handover.RaumBedarf, 2000.0);
        EXPECT_EQ(handover.RaumGedeckt, test.gedeckt);
        EXPECT_EQ(handover.Leistung, test.leistung);
        EXPECT_EQ(handover.LaengeMax, test.laengeMax);
        EXPECT_EQ(handover.HoeheMin, test.hoeheMin);
        EXPECT_EQ(handover.HoeheMax, test.hoeheMax);
        EXPECT_EQ(handover.TiefeMax, test.tiefeMax);
        EXPECT_EQ(handover.Vorlauf, 75.0);
    }
}

TEST_F(WishHandoverTest, NoRowAboveTheLimitComesThroughTheModulesTolerance)
{
    m_folder.WriteBytes("Prova/hk.tga", "010;2010-05;Prova S.p.A.;2026-01\n"
                                        "100;1;Radiatori a piastra\n"
                                        "110;1;Tipo 22\n"
                                        "700;1;22/300;M;300;100;500;1.3;5\n"
                                        "710.01;1;1000\n"
                                        "700;2;22/595;M;595;100;990;1.3;5\n"
                                        "710.01;1;1000\n"
                                        "700;3;22/600;M;600;100;1000;1.3;5\n"
                                        "710.01;1;1000\n");
    // The rows are nearer to the need of 1000 W the higher they are.
    const struct
    {
        double limit, hoeheMax;
        const wchar_t* highest;
    } cases[] = {
        {600, 600, L"22/600"}, {609, 600, L"22/600"},
        {595, 585, L"22/595"}, // from 595 mm on the module would take 600 mm too
        {599, 589, L"22/595"}, {594, 300, L"22/300"},
        {300, 300, L"22/300"},
    };
    for (const auto& test : cases) {
        CRadiatorWish wish = Wish(Room(L"Sala", 1000.0));
        wish.grenzen.hoeheMax = test.limit;
        HK_DATEN_VDI3805_UEBERGABE handover = FillHandover(wish);
        EXPECT_EQ(handover.HoeheMax, test.hoeheMax) << test.limit;
        CString layer;
        int layerColor = 0;
        ASSERT_GE(HeizkoerperauswahlVDI3805(nullptr, &handover, layer, layerColor, false, false),
                  0);
        const CRadiatorChoice chosen = ReadHandover(handover);
        EXPECT_EQ(chosen.strTyp, test.highest) << test.limit;
        EXPECT_EQ(chosen.produkt, wish.produkt);
        EXPECT_LE(chosen.daten.Hoehe, test.limit);
    }
    CRadiatorWish low = Wish(Room(L"Sala", 1000.0));
    low.grenzen.hoeheMax = 295.0;
    EXPECT_EQ(SelectRadiator(low).status, RoomStatus::unfitting);
}

} // namespace workbench
