#include "workbench/plan/repair.h"

#include "platform/encoding.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/plan/coverage.h"

namespace workbench {

namespace {

class RepairTest : public CPlanFixture
{
protected:
    RepairTest()
    {
        // At 75/65/20 °C: 500, 2000, 1000 and 950 W/m; a section has 50 W and 50 mm.
        m_folder.WriteBytes("Scala/hk.tga",
                            "010;2010-05;Scala S.p.A.;2026-01\n"
                            "100;1;Piastre\n" +
                                Series("1", "11", "M;600;60;500") + kLengths +
                                Series("2", "33", "M;600;150;2000") + kLengths +
                                Series("3", "22", "M;600;100;1000") + kLengths +
                                Series("4", "30", "M;600;150;950") + kLengths + "100;2;Tubolari\n" +
                                Series("1", "T", "S;600;100;50") + "710.03;50;100;0\n");
    }

    static std::string Series(const std::string& number, const std::string& type,
                              const std::string& data)
    {
        return "110;" + number + ";Tipo " + type + "\n700;1;" + type + ";" + data + ";1.3;5\n";
    }

    static CRoom RoomOfType(const CString& produkt, double bedarf,
                            const std::vector<double>& widths)
    {
        CRoom room = Room(L"Prova", bedarf);
        room.strHersteller = L"Scala";
        room.strArt = produkt == L"Tipo T" ? L"Tubolari" : L"Piastre";
        room.strProdukt = produkt;
        room.plaetze.clear();
        for (const double width : widths) {
            room.plaetze.push_back({PlaceKind::wall, 900.0, width, Wall::ost, 0.0});
        }
        return room;
    }

    /// A radiator of the room's product at its first place.
    static CPlacedRadiator Present(const CRoom& room, double output, double length)
    {
        CPlacedRadiator radiator = Radiator(output, length);
        radiator.strHersteller = room.strHersteller;
        radiator.strArt = room.strArt;
        radiator.strProdukt = room.strProdukt;
        return radiator;
    }

    /// The room after a repair of it alone; `m_report` is what was told.
    CRoom Repaired(const CRoom& room, Picked picked = Picked::stay)
    {
        ReplaceRoom(m_building, kSala, room);
        const CRepairResult result = RepairRooms(m_building, {kSala}, {}, picked);
        m_report = result.rooms.empty() ? CString() : result.rooms.front().strReport;
        return RoomOf(result.building, kSala);
    }

    static std::vector<double> OutputsOf(const CRoom& room)
    {
        std::vector<double> outputs;
        for (const CPlacedRadiator& radiator : room.heizkoerper) {
            outputs.push_back(radiator.daten.Leistung);
        }
        return outputs;
    }

    static inline const std::string kLengths = "710.01;1;500\n710.01;2;1000\n710.01;3;2000\n";
    CString m_report;
};

} // namespace

TEST_F(RepairTest, TakesTheLargestSizeThenFurtherPlacesThenAStrongerType)
{
    using enum Coverage;
    const struct
    {
        const wchar_t* type;
        double demand;
        std::vector<double> widths, outputs;
        const wchar_t* expectedType;
        const wchar_t* told;
        Coverage coverage = covered;
    } cases[] = {
        // An ordinary size is enough.
        {L"22", 1000, {2000, 2000}, {1000}, L"22", L"ora coperto"},
        // The largest that fits its place, which is not the largest that there is.
        {L"33", 9000, {1999}, {2000}, L"33", L"mancano 7000 W", lacking},
        // Of sections as well, though the catalogue begins with those near the need.
        {L"T", 3000, {520}, {500}, L"T", L"mancano 2500 W", lacking},
        // Further places before a stronger type.
        {L"11", 1500, {2000, 1000}, {1000, 500}, L"11", L"posto 2 11, 600 x 60 x 1000 mm, 500 W"},
        // No more places than needed, the first that is enough.
        {L"22", 3000, {2000, 600, 1000, 2000}, {2000, 1000}, L"22", L"aggiunto al posto 3"},
        // A stronger type last, the slimmest that is enough.
        {L"11", 2000, {2000}, {2000}, L"22", L"tipo più forte Tipo 22 invece di Tipo 11"},
        {L"11", 4000, {2000, 500}, {4000}, L"33", L"tipo più forte Tipo 33 invece di Tipo 11"},
        // The strongest where none is enough.
        {L"11", 9000, {2000}, {4000}, L"33", L"mancano 5000 W", lacking},
        // Nothing fits.
        {L"11", 1000, {400}, {}, L"11", L"non cambia, manca il corpo", empty},
    };
    for (const auto& c : cases) {
        const CString product = CString(L"Tipo ") + c.expectedType;
        for (const bool isPresent : {false, true}) {
            SCOPED_TRACE(testing::Message() << Utf8FromWide(c.type) << ", " << c.demand << " W"
                                            << (isPresent ? ", with a radiator" : ""));
            CRoom room = RoomOfType(CString(L"Tipo ") + c.type, c.demand, c.widths);
            if (isPresent && !c.outputs.empty()) {
                room.heizkoerper = {Present(room, 100.0, 300.0)};
            }
            const CRoom repaired = Repaired(room);
            EXPECT_EQ(OutputsOf(repaired), c.outputs) << Utf8FromWide(m_report);
            EXPECT_EQ(repaired.strProdukt, product);
            for (const CPlacedRadiator& radiator : repaired.heizkoerper) {
                EXPECT_EQ(radiator.strProdukt, product);
            }
            EXPECT_EQ(CoverageOf(m_building, repaired), c.coverage);
            EXPECT_NE(m_report.find(c.told), CString::npos) << Utf8FromWide(m_report);
        }
    }
}

TEST_F(RepairTest, WhatIsTooLargeOrOversizedGetsARightSize)
{
    CRoom room = RoomOfType(L"Tipo 22", 1000.0, {1500, 1500});
    room.heizkoerper = {Present(room, 2000.0, 2000.0)};
    EXPECT_EQ(OutputsOf(Repaired(room)), (std::vector<double>{1000.0}));
    room.heizkoerper = {Present(room, 1500.0, 1500.0)};
    EXPECT_EQ(OutputsOf(Repaired(room)), (std::vector<double>{1000.0}));
    // Too large and by far too weak for what fits beside it.
    room.bedarf = 2000.0;
    room.heizkoerper = {Present(room, 2000.0, 2000.0)};
    EXPECT_EQ(OutputsOf(Repaired(room)), (std::vector<double>{1000.0, 1000.0}));
}

TEST_F(RepairTest, LeavesWhatIsRightAndWhatWasPickedByHand)
{
    CRoom room = RoomOfType(L"Tipo 22", 2000.0, {2000, 2000});
    room.heizkoerper = {Present(room, 500.0, 500.0)};
    room.heizkoerper[0].bVonHand = true;
    EXPECT_EQ(OutputsOf(Repaired(room)), (std::vector<double>{500.0, 2000.0}));
    EXPECT_EQ(OutputsOf(Repaired(room, Picked::sizedAnew)), (std::vector<double>{2000.0}));

    room.plaetze.pop_back();
    EXPECT_EQ(OutputsOf(Repaired(room)), (std::vector<double>{500.0}));
    EXPECT_NE(m_report.find(L"scelto a mano"), CString::npos) << Utf8FromWide(m_report);

    room.heizkoerper[0].daten.Leistung = 1900.0; // another row than sizing would choose
    EXPECT_EQ(OutputsOf(Repaired(room, Picked::sizedAnew)), (std::vector<double>{1900.0}));
    EXPECT_EQ(m_report, L"");

    room.strProdukt = L"Tipo 99"; // not in the catalogue: no other type in its place
    room.heizkoerper.clear();
    EXPECT_EQ(OutputsOf(Repaired(room)), std::vector<double>());
    EXPECT_NE(m_report.find(L"non ha il prodotto \"Tipo 99\""), CString::npos)
        << Utf8FromWide(m_report);
}

TEST_F(RepairTest, CancelledItLeavesTheBuildingAsItWas)
{
    std::size_t asked = 0;
    const CRepairResult result =
        RepairRooms(m_building, {kCamera, kSala, {7, 7}}, [&](std::size_t done, std::size_t all) {
            EXPECT_EQ(all, 2u);
            asked = done;
            return done < 2;
        });
    EXPECT_EQ(asked, 2u);
    EXPECT_TRUE(result.bCancelled);
    EXPECT_TRUE(result.rooms.empty());
    EXPECT_EQ(&RoomOf(result.building, kSala), &RoomOf(m_building, kSala));
}

} // namespace workbench
