#include "workbench/schedule/schedule.h"

#include "platform/encoding.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/plan/sizing.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_text.h"
#include "workbench/schedule/text_columns.h"

#include <gtest/gtest.h>

#include <tuple>

namespace workbench {

namespace {

// Panels state their output and water per metre, sections per section, towel radiators per unit.
const char* const kCatalogue = "010;2010-05;Prova S.p.A.;2026-01\n"
                               "100;1;Piastre\n"
                               "110;1;P10\n"
                               "700;1;P10/600;M;600;60;1000;1.3;2\n"
                               "710.01;1;500\n"
                               "710.01;2;1000\n"
                               "710.01;3;1500\n"
                               "700;2;P10/900;M;900;60;1400;1.3;3\n"
                               "710.01;1;500\n"
                               "100;2;Elementi\n"
                               "110;1;E80\n"
                               "700;1;E80/600;S;600;80;100;1.3;0.5\n"
                               "710.03;80;20\n"
                               "100;3;Bagno\n"
                               "110;1;B\n"
                               "700;1;B/600;E;600;40;700;1.3;3\n"
                               "710.01;1;500\n"
                               "710.01;2;700;1000;4\n";

/// At 75/65 °C and 20 °C design conditions are the standard ones: the factor is 1.
constexpr CHeatingSystem kStandard{75.0, 65.0};

class ScheduleTest : public CPlanFixture
{
protected:
    ScheduleTest() { m_folder.WriteBytes("Prova/hk.tga", kCatalogue); }

    static CRoom Room(const CString& name, double bedarf, const CString& art,
                      const CString& produkt)
    {
        CRoom room = CPlanFixture::Room(name, bedarf);
        room.grenzen.laengeMax = 1200.0;
        room.strArt = art;
        room.strProdukt = produkt;
        return room;
    }

    /// Within the limits that the room has, wherever its places are.
    static CRoomOutcome Select(const CRoom& room, const CHeatingSystem& system = kStandard)
    {
        CBuilding building;
        building.system = system;
        CRadiatorWish wish = WishForPlace(building, {}, room, 0);
        wish.grenzen = room.grenzen;
        return SelectRadiator(wish);
    }
};

} // namespace

TEST_F(ScheduleTest, NearestRadiatorWithinTheLimitsIsChosen)
{
    // 1000 W less 200 W covered are 800 W. Below 720 mm and 1200 mm stand 600x500 with 500 W
    // (300 off) and 600x1000 with 1000 W (200 off).
    CRoom room = Room(L"Sala", 1000.0, L"Piastre", L"P10");
    room.gedeckt = 200.0;
    const CRoomOutcome outcome = Select(room);
    ASSERT_EQ(outcome.status, RoomStatus::chosen);
    EXPECT_EQ(outcome.radiator->strTyp, L"P10/600");
    EXPECT_EQ(outcome.radiator->daten.Laenge, 1000.0);
    EXPECT_EQ(outcome.radiator->daten.LeistungEN442, 1000.0);
    EXPECT_EQ(outcome.radiator->daten.Inhalt, 2.0);
    EXPECT_EQ(GetDeviation(outcome.radiator->daten.Leistung, GetRequired(room)), 25.0);
}

TEST_F(ScheduleTest, RowsBuiltToMeasureFollowEachRoomsNeed)
{
    // 850 W: eight sections (800 W) and nine (900 W) are equally near, and the earlier row stays.
    // 2000 W: twenty sections, 20 x 80 mm long.
    const CRoomOutcome small = Select(Room(L"Piccolo", 850.0, L"Elementi", L"E80"));
    CRoom large = Room(L"Grande", 2000.0, L"Elementi", L"E80");
    large.grenzen.laengeMax = 1600.0;
    const CRoomOutcome outcome = Select(large);

    ASSERT_EQ(small.status, RoomStatus::chosen);
    EXPECT_EQ(small.radiator->daten.Elemente, 8.0);
    EXPECT_EQ(small.radiator->daten.Inhalt, 4.0);
    ASSERT_EQ(outcome.status, RoomStatus::chosen);
    EXPECT_EQ(outcome.radiator->daten.Laenge, 1600.0);
}

TEST_F(ScheduleTest, StrongEnoughRadiatorTakesThePlaceOfANearerWeakOne)
{
    // 800 W: the unit of 700 W is nearest but below 720 W; that of 1000 W serves.
    const CRoomOutcome outcome = Select(Room(L"Bagno", 800.0, L"Bagno", L"B"));
    ASSERT_EQ(outcome.status, RoomStatus::chosen);
    EXPECT_EQ(outcome.radiator->daten.Leistung, 1000.0);
}

TEST_F(ScheduleTest, UnfittingRoomsSayWhatTheNearestRadiatorLacks)
{
    CRoom low = Room(L"Basso", 1000.0, L"Piastre", L"P10");
    low.grenzen.hoeheMax = 595.0; // the module would let 600 mm pass
    CRoom narrow = Room(L"Stretto", 1000.0, L"Piastre", L"P10");
    narrow.grenzen = {500.0, 400.0, 0.0, 50.0};
    CRoom deep = Room(L"Profondo", 1000.0, L"Piastre", L"P10");
    deep.grenzen.tiefeMin = 80.0;
    // P10/900 with 1400 W would be nearer by output, but it breaks the height by far more.
    CRoom lowest = Room(L"Bassissimo", 1400.0, L"Piastre", L"P10");
    lowest.grenzen.hoeheMax = 500.0;
    // At 55/45 °C the factor is 0.495: 1000 W become 495 W, 305 short of 800.
    const CRoom cold = Room(L"Freddo", 800.0, L"Piastre", L"P10");
    const std::tuple<CRoom, CHeatingSystem, CString> cases[] = {
        {low, kStandard,
         L"il più vicino è P10/600, 600 x 60 x 1000 mm, 1000 W: altezza 600 mm, consentiti 595 mm"},
        {narrow, kStandard,
         L"il più vicino è P10/600, 600 x 60 x 1000 mm, 1000 W: altezza 600 mm, consentiti 500 mm; "
         L"lunghezza 1000 mm, consentiti 400 mm; profondità 60 mm, consentiti 50 mm"},
        {deep, kStandard,
         L"il più vicino è P10/600, 600 x 60 x 1000 mm, 1000 W: profondità 60 mm, richiesti almeno "
         L"80 mm"},
        {lowest, kStandard,
         L"il più vicino è P10/600, 600 x 60 x 1000 mm, 1000 W: altezza 600 mm, consentiti 500 mm; "
         L"mancano 400 W (28,6 %)"},
        {cold,
         {55.0, 45.0},
         L"il più vicino è P10/600, 600 x 60 x 1000 mm, 495 W: mancano 305 W (38,1 %)"},
    };
    for (const auto& [room, system, note] : cases) {
        const CRoomOutcome outcome = Select(room, system);
        EXPECT_EQ(outcome.status, RoomStatus::unfitting);
        EXPECT_EQ(outcome.strNote, note);
    }
}

TEST_F(ScheduleTest, UnknownNamesAndDamagedCataloguesAreTold)
{
    CRoom maker = Room(L"a", 500.0, L"Piastre", L"P10");
    maker.strHersteller = L"Nessuno";
    CRoom damaged = maker;
    damaged.strHersteller = L"Rotto";
    const std::tuple<CRoom, RoomStatus, CString> cases[] = {
        {maker, RoomStatus::unknownProduct, L"produttore \"Nessuno\""},
        {Room(L"b", 500.0, L"Altro", L"P10"), RoomStatus::unknownProduct, L"categoria \"Altro\""},
        {Room(L"c", 500.0, L"Piastre", L"P99"), RoomStatus::unknownProduct, L"prodotto \"P99\""},
        {damaged, RoomStatus::badCatalogue, m_folder.Path("Rotto/hk.tga") + L": riga 4: "},
    };
    for (const auto& [room, status, told] : cases) {
        const CRoomOutcome outcome = Select(room);
        EXPECT_EQ(outcome.status, status);
        EXPECT_FALSE(outcome.radiator);
        EXPECT_NE(outcome.strNote.find(told), CString::npos)
            << testing::PrintToString(outcome.strNote);
    }
}

TEST_F(ScheduleTest, TotalsCountChosenRadiatorsAndEveryDemand)
{
    CRoom covered = Room(L"Coperto", 300.0, L"Piastre", L"P10");
    covered.gedeckt = 350.0;
    CRoom damaged = Room(L"Rotto", 400.0, L"Piastre", L"P10");
    damaged.strHersteller = L"Rotto";
    CRoom low = Room(L"Basso", 1000.0, L"Piastre", L"P10");
    low.plaetze.front().hoehe = 400.0;
    const CRoom first = Room(L"Sala", 1000.0, L"Piastre", L"P10");
    const CRoom second = Room(L"Piccolo", 850.0, L"Elementi", L"E80");
    m_building.floors[0].rooms.clear();
    m_building.floors[1].rooms.clear();
    for (const CRoom& room : {first, covered, damaged}) {
        Add(0, room);
    }
    Add(1, second);
    Add(1, low);
    const CSizingResult sized = SizeRooms(m_building, AllRooms(m_building), {});
    const CSchedule schedule = SchedulePlan(sized.building, sized.faults);

    // Chosen: 1000 W with 2 l, 800 W with 4 l. Required: 1000 + 0 + 400 + 850 + 1000.
    const CScheduleTotals& totals = schedule.totals;
    EXPECT_EQ(totals.nRooms, 5);
    EXPECT_EQ(totals.nChosen, 2);
    EXPECT_EQ(totals.nOpen, 2);
    EXPECT_EQ(totals.bedarf, 3550.0);
    EXPECT_EQ(totals.required, 3250.0);
    EXPECT_EQ(totals.leistung, 1800.0);
    EXPECT_EQ(totals.inhalt, 6.0);
    EXPECT_EQ(schedule.floors[1].totals.leistung, 800.0);
    EXPECT_EQ(schedule.GetUnread().size(), 1u);
    EXPECT_EQ(schedule.floors[1].rows[1].outcome.status, RoomStatus::unfitting);
    EXPECT_EQ(SchedulePlan(sized.building).floors[1].rows[1].outcome.status, RoomStatus::missing)
        << "later nobody knows what was tried";
    EXPECT_EQ(FormatScheduleText(schedule, false).find(L"Valvole"), CString::npos) << "no bill";
}

TEST(ScheduleCsv, FieldsAreQuotedWhereTheyNeedIt)
{
    EXPECT_EQ(QuoteCsv(L"già, 1.5"), L"già, 1.5");
    EXPECT_EQ(QuoteCsv(L"a;b"), L"\"a;b\"");
    EXPECT_EQ(QuoteCsv(L"18\""), L"\"18\"\"\"");
    EXPECT_EQ(QuoteCsv(L"a\nb"), L"\"a\nb\"");
}

TEST(ScheduleCsv, NoTextIsTakenForAFormulaOrForAControlCharacter)
{
    // What a spreadsheet would write anew is kept by a formula of that text.
    const std::tuple<CString, CString, CString> cases[] = {
        {L"=HYPERLINK(1)", L"'=HYPERLINK(1)", L"\"=\"\"=HYPERLINK(1)\"\"\""},
        {L"+39 045", L"'+39 045", L"\"=\"\"+39 045\"\"\""},
        {L"-T", L"'-T", L"\"=\"\"-T\"\"\""},
        {L"-12.5", L"-12.5", L"\"=\"\"-12.5\"\"\""},
        {L"1.01", L"1.01", L"\"=\"\"1.01\"\"\""},
        {L"1-set", L"1-set", L"\"=\"\"1-set\"\"\""},
        {L"mar 24", L"mar 24", L"\"=\"\"mar 24\"\"\""},
        {L"Vero", L"Vero", L"\"=\"\"Vero\"\"\""},
        {L" Sala", L" Sala", L"\"=\"\" Sala\"\"\""},
        {L"#N/D", L"#N/D", L"\"=\"\"#N/D\"\"\""},
        {L"T=a", L"T=a", L"T=a"},
        {L"+1\"&A1", L"\"'+1\"\"&A1\"", L"\"=\"\"+1\"\"\"\"&A1\"\"\""},
        {L"\t=1\x1b", L"?=1?", L"\"=\"\"?=1?\"\"\""},
        {L"=1" + CString(300, L'a'), L"'=1" + CString(300, L'a'), L"'=1" + CString(300, L'a')},
    };
    for (const auto& [text, plain, spreadsheet] : cases) {
        CSchedule schedule;
        CScheduleRow row;
        row.room.strName = text;
        schedule.floors.push_back({L"Terra", {row}, {}});
        for (const auto& [form, written] :
             {std::pair(CsvForm::plain, plain), std::pair(CsvForm::spreadsheet, spreadsheet)}) {
            const CString csv = FormatScheduleCsv(schedule, form);
            EXPECT_NE(csv.find(L"Terra;" + written + L";"), CString::npos) << Utf8FromWide(csv);
        }
    }
}

TEST(TextColumns, TextsAlignByTheirDisplayWidth)
{
    CTextColumns table({{L"Nome", false, 8}, {L"W", true, 8}});
    table.AddRow({L"Nicolò", L"5"});
    table.AddRow({L"Nicolo\u0300", L"15"}); // the accent as a character of its own
    table.AddRow({L"Camera da letto", L"115"});
    table.AddRow({L"\x1b[2J", L""});
    EXPECT_EQ(table.Format(), L"Nome        W\n"
                              L"-------------\n"
                              L"Nicolò      5\n"
                              L"Nicolo\u0300     15\n"
                              L"Camera …  115\n"
                              L"?[2J\n");
}

TEST(TextColumns, LongLinesGoOnBelowTheirBeginning)
{
    CTextColumns table({});
    const CString word(kMostPlaces - 8, L'a');
    table.AddLine(L"  " + word + L" bb cccc dd");
    table.AddLine(L"  " + CString(kMostPlaces, L'b'));
    EXPECT_EQ(table.Format(), L"\n\n  " + word + L" bb\n  cccc dd\n  " +
                                  CString(kMostPlaces - 2, L'b') + L"\n  bb\n");
}

} // namespace workbench
