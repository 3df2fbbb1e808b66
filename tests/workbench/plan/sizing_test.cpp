#include "workbench/plan/sizing.h"

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "tests/workbench/plan/plan_fixture.h"

namespace workbench {

namespace {

class SizingTest : public CPlanFixture
{
protected:
    CSizingResult SizeAll() const { return SizeRooms(m_building, AllRooms(m_building), {}); }
};

const CPlacedRadiator& FirstOf(const CBuilding& building, const CRoomRef& ref)
{
    return RadiatorOf(building, {ref, 0});
}

} // namespace

TEST_F(SizingTest, ARoomWithoutRadiatorGetsOneReadyForThePlan)
{
    CRoom camera = RoomOf(m_building, kCamera);
    camera.ventile.vorlauf = CValveKey{L"Fabbrica", L"0123"};
    ReplaceRoom(m_building, kCamera, camera);
    const CSizingResult result = SizeAll();
    EXPECT_EQ(result.nSized, 2);
    EXPECT_TRUE(result.faults.empty());
    const CPlacedRadiator& radiator = FirstOf(result.building, kCamera);
    EXPECT_EQ(radiator.strProdukt, L"Tipo 22");
    EXPECT_EQ(radiator.strTyp, L"22/600");
    EXPECT_EQ(radiator.daten.Leistung, 1500.0);
    EXPECT_EQ(radiator.daten.Laenge, 1500.0);
    EXPECT_EQ(radiator.strLayer, L"HEIZ_Primo");
    EXPECT_EQ(radiator.nFarbe, 3);
    EXPECT_EQ(radiator.strBlock, L"RAD_PIASTRA_22_PIANTA");
    EXPECT_EQ(radiator.ventile.vorlauf->strHersteller, L"Fabbrica");
    EXPECT_TRUE(radiator.anschluss.AnschlussAN.empty());
}

TEST_F(SizingTest, NewRadiatorsStandAtTheDistancesThatTheHostKeeps)
{
    const struct
    {
        double wand, boden, expectedWand, expectedBoden;
    } cases[] = {{0.0, 0.0, 0.05, 0.1}, {0.07, 0.0, 0.07, 0.1}, {0.0, 0.15, 0.05, 0.15}};
    const CPlacedRadiator fresh = FirstOf(SizeAll().building, kSala);
    EXPECT_EQ(fresh.abstandWand, 0.05);
    for (const auto& test : cases) {
        VDI6030START start;
        start.AbstandWand = test.wand;
        start.AbstandBoden = test.boden;
        ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
        const CPlacedRadiator radiator = FirstOf(SizeAll().building, kSala);
        EXPECT_DOUBLE_EQ(radiator.abstandWand, test.expectedWand);
        EXPECT_DOUBLE_EQ(radiator.abstandBoden, test.expectedBoden);
    }
}

TEST_F(SizingTest, LayerAndBlockOfTheDialogWin)
{
    const CRoom& room = RoomOf(m_building, kSala);
    const CRadiatorStart start = ReadRadiatorStart();
    const struct
    {
        std::optional<CRadiatorLayer> layer;
        std::optional<CString> block;
        const wchar_t* art;
        const wchar_t* expectedLayer;
        int expectedColor;
        const wchar_t* expectedBlock;
    } cases[] = {
        {CRadiatorLayer{L"ALTRO", 5}, L"MIO", L"Radiatori a piastra", L"ALTRO", 5, L"MIO"},
        {CRadiatorLayer{L"ALTRO", 5}, {}, L"Altro", L"ALTRO", 5, L"ULTIMO"},
        {CRadiatorLayer{L"", 5}, L"", L"Altro", L"HEIZ_Terra", 3, L""},
        {{}, {}, L"Radiatori a piastra", L"HEIZ_Terra", 3, L"RAD_PIASTRA_22_PIANTA"},
    };
    for (const auto& test : cases) {
        const CRadiatorChoice chosen = {{L"Prova", test.art, L"Tipo 22"},
                                        L"22/600",
                                        Radiator(1000.0).daten,
                                        test.layer,
                                        test.block};
        const auto radiator = PlaceRadiator(m_building, room, L"Terra", chosen, start);
        ASSERT_TRUE(radiator);
        EXPECT_EQ(radiator->strLayer, test.expectedLayer);
        EXPECT_EQ(radiator->nFarbe, test.expectedColor);
        EXPECT_EQ(radiator->strBlock, test.expectedBlock);
        CRoom full = room;
        full.heizkoerper = {*radiator};
        EXPECT_FALSE(PlaceRadiator(m_building, full, L"Terra", chosen, start));
    }
}

TEST_F(SizingTest, AnotherSizeKeepsWhatTheDesignerArranged)
{
    for (const bool otherProduct : {false, true}) {
        CPlacedRadiator present = Radiator(500.0, 500.0);
        present.abstandWand = 0.33;
        present.strLayer = L"MIO";
        present.strBlock = L"MIO_BLOCCO";
        present.anschluss.AnschlussAN = L"0.5;0;0;0;0.5;0;0;0";
        present.ventile.ruecklauf = CValveKey{L"Fabbrica", L"0123"};
        CRoom sala = Room(L"Sala", 1000.0);
        sala.heizkoerper = {present};
        ReplaceRoom(m_building, kSala, sala);
        if (otherProduct) {
            SetProduct(m_building, AllRooms(m_building),
                       {L"Prova", L"Radiatori a piastra", L"Tipo 11"});
        }
        const CSizingResult result = SizeRooms(m_building, {kSala}, {});
        const CPlacedRadiator& radiator = FirstOf(result.building, kSala);
        EXPECT_EQ(radiator.daten.Leistung, 1000.0);
        EXPECT_EQ(radiator.daten.Laenge, otherProduct ? 2000.0 : 1000.0);
        EXPECT_EQ(radiator.strProdukt, otherProduct ? L"Tipo 11" : L"Tipo 22");
        EXPECT_EQ(radiator.strBlock, otherProduct ? L"RAD_PIASTRA_11_PIANTA" : L"MIO_BLOCCO");
        EXPECT_EQ(radiator.abstandWand, 0.33);
        EXPECT_EQ(radiator.strLayer, L"MIO");
        EXPECT_EQ(radiator.anschluss.AnschlussAN, L"0.5;0;0;0;0.5;0;0;0");
        EXPECT_TRUE(radiator.ventile.ruecklauf);
        EXPECT_EQ(&RoomOf(result.building, kCamera), &RoomOf(m_building, kCamera));
    }
}

TEST_F(SizingTest, SeveralRadiatorsShareTheNeedAsTheyDidBefore)
{
    const struct
    {
        double before[2], expected[2];
    } cases[] = {
        {{400, 200}, {2000, 1000}}, // two thirds and one third of 3000 W
        {{0, 0}, {1500, 1500}},
        {{800, 0}, {2000, 0}}, // all of it, for which 2000 W are too little
    };
    for (const auto& test : cases) {
        CRoom sala = Room(L"Sala", test.before[1] == 0 && test.before[0] > 0 ? 2000.0 : 3000.0);
        sala.plaetze.push_back({PlaceKind::wall, 900.0, 2500.0, Wall::ost, 0.0});
        sala.heizkoerper = {Radiator(test.before[0]), Radiator(test.before[1])};
        sala.heizkoerper[1].nPlatz = 1;
        ReplaceRoom(m_building, kSala, sala);
        const CSizingResult result = SizeRooms(m_building, {kSala}, {});
        EXPECT_TRUE(result.faults.empty());
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(RadiatorOf(result.building, {kSala, i}).daten.Leistung, test.expected[i]);
        }
    }
}

TEST_F(SizingTest, ANarrowFirstPlaceIsPassedOverForOneThatServes)
{
    CRoom sala = Room(L"Sala", 1900.0);
    sala.plaetze.insert(sala.plaetze.begin(), {PlaceKind::window, 900.0, 600.0, Wall::nord, 0.0});
    ReplaceRoom(m_building, kSala, sala);
    const CSizingResult result = SizeAll();
    EXPECT_TRUE(result.faults.empty());
    EXPECT_EQ(FirstOf(result.building, kSala).nPlatz, 1u);
}

TEST_F(SizingTest, WhatCannotBeSizedIsToldAndTheRestGoesOn)
{
    CRoom damaged = Room(L"Rotto", 1000.0);
    damaged.strHersteller = L"Rotto";
    damaged.heizkoerper = {Radiator(500.0)};
    CRoom unknown = Room(L"Ignoto", 1000.0);
    unknown.strProdukt = L"Tipo 99";
    CRoom large = Room(L"Grande", 5000.0);
    CRoom enough = unknown; // of no catalogue, but it covers
    enough.heizkoerper = {Radiator(950.0)};
    CRoom covered = Room(L"Coperto", 300.0);
    covered.gedeckt = 300.0;
    const std::size_t first = 1;
    for (const CRoom& room : {damaged, unknown, large, enough, covered, Room(L"Ultimo", 500.0)}) {
        Add(0, room);
    }
    const CSizingResult result = SizeAll();
    EXPECT_EQ(result.nSized, 3); // Sala, Ultimo, Camera
    EXPECT_EQ(FirstOf(result.building, {0, first}).daten.Leistung, 500.0);
    EXPECT_EQ(FirstOf(result.building, {0, first + 5}).daten.Leistung, 500.0);
    for (std::size_t i = first; i < first + 5; ++i) {
        EXPECT_EQ(&RoomOf(result.building, {0, i}), &RoomOf(m_building, {0, i}));
    }
    const struct
    {
        RoomStatus status;
        CString note;
    } expected[] = {
        {RoomStatus::badCatalogue, m_folder.Path("Rotto/hk.tga") + L": riga 4: "},
        {RoomStatus::unknownProduct, L"prodotto \"Tipo 99\""},
        {RoomStatus::unfitting, L"mancano 3000 W"},
    };
    ASSERT_EQ(result.faults.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(result.faults[i].room, (CRoomRef{0, first + i}));
        const CRoomOutcome& outcome = result.faults[i].outcome;
        EXPECT_EQ(outcome.status, expected[i].status);
        EXPECT_NE(outcome.strNote.find(expected[i].note), CString::npos)
            << testing::PrintToString(outcome.strNote);
    }
}

TEST_F(SizingTest, CancellingAtAnyMomentLeavesTheBuildingAsItWas)
{
    Add(0, Room(L"Terzo", 800.0));
    const std::vector<CRoomRef> rooms = {kCamera, {0, 1}, kSala, kSala, {7, 7}};
    const std::size_t all = 4; // Sala once
    for (std::size_t moment = 1; moment <= all; ++moment) {
        std::size_t asked = 0;
        const CSizingResult result =
            SizeRooms(m_building, rooms, [&](std::size_t done, std::size_t count) {
                EXPECT_EQ(done, ++asked);
                EXPECT_EQ(count, all);
                return done < moment;
            });
        EXPECT_EQ(asked, moment);
        EXPECT_TRUE(result.bCancelled);
        EXPECT_EQ(result.nSized, 0);
        for (const CRoomRef& ref : AllRooms(m_building)) {
            EXPECT_EQ(&RoomOf(result.building, ref), &RoomOf(m_building, ref));
        }
    }
}

TEST_F(SizingTest, OthersShareWhatARadiatorPickedByHandLeaves)
{
    CRoom sala = Room(L"Sala", 3000.0);
    sala.plaetze.push_back({PlaceKind::wall, 900.0, 2500.0, Wall::ost, 0.0});
    sala.heizkoerper = {Radiator(1500.0), Radiator(750.0)};
    sala.heizkoerper[0].bVonHand = true;
    sala.heizkoerper[1].nPlatz = 1;
    ReplaceRoom(m_building, kSala, sala);
    const struct
    {
        Picked picked;
        double expected[2];
        bool byHand;
    } cases[] = {{Picked::stay, {1500, 1500}, true}, {Picked::sizedAnew, {2000, 1000}, false}};
    for (const auto& test : cases) {
        const CSizingResult result = SizeRooms(m_building, {kSala}, {}, test.picked);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(RadiatorOf(result.building, {kSala, i}).daten.Leistung, test.expected[i]);
        }
        EXPECT_EQ(HasPicked(result.building, {kSala}), test.byHand);
    }
}

} // namespace workbench
