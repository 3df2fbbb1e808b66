#include "platform/encoding.h"
#include "tests/workbench/schedule/schedule_fixture.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_text.h"
#include "workbench/schedule/text_columns.h"
#include "workbench/schedule/valve_bill.h"

#include <algorithm>
#include <sstream>

namespace workbench {

namespace {

using PlanScheduleTest = CScheduleFixture;

} // namespace

TEST_F(PlanScheduleTest, ColumnsOfTheCsvFileSumToItsTotals)
{
    const CString csv = FormatScheduleCsv(SchedulePlan(m_building), CsvForm::plain);
    for (const CString line :
         {L"Terra;Due;scelto;20;1200;200;1000;Prova;Radiatori a piastra;Tipo 22;A;600;100;"
          L"1000;600;600;-1.0;0;2.500;;;;;;;;;;;;;",
          L"Terra;Due;scelto;20;;;;Prova;Radiatori a piastra;Tipo 11;B;600;100;1000;390;390;"
          L";0;0.000;;;;;;;Nessuno;111111111111111111111111111111111111;;;;;\"ritorno: la "
          L"cartella delle valvole non ha il produttore \"\"Nessuno\"\"\"",
          L"Terra;Debole;scarso;20;1000;0;1000;Prova;Radiatori a piastra;Tipo 22;;"
          L"600;100;1000;800;800;-20.0;0;0.000;;;;;;;;;;;;;mancano 200 W (20,0 %)",
          L"Terra;Coperto;già coperto;20;300;300;0;Prova;Radiatori a piastra;Tipo 22;;;"
          L";;;;;;;;;;;;;;;;;;;nessun corpo scaldante necessario",
          L"Primo;Camera;manca il corpo scaldante;20;1500;0;1500;Prova;Radiatori a "
          L"piastra;Tipo 22;;;;;;;;;;;;;;;;;;;;;;mancano 1500 W (100,0 %)",
          L"Terra;;totale del piano;;2500;;2000;;;;;;;;1790;1790;-10.5;;2.500;;"
          L";;;;;;;;;;;",
          L";;totale dell'edificio;;4000;;3500;;;;;;;;1790;1790;-48.9;;2.500;;;;;;;;;;;;;"}) {
        EXPECT_NE(csv.find(L"\n" + line + L"\r"), CString::npos)
            << Utf8FromWide(line + L"\nin\n" + csv);
    }
}

TEST_F(PlanScheduleTest, ASpreadsheetGetsCommasAndCodesAsTexts)
{
    const CString csv = FormatScheduleCsv(SchedulePlan(m_building));
    EXPECT_TRUE(csv.starts_with(L"\ufeffPiano;Locale;"));
    const CString line =
        L"Terra;Due;scelto;20;;;;Prova;Radiatori a piastra;\"=\"\"Tipo 11\"\"\";B;600;100;1000;"
        L"390;390;;0;0,000;;;;;;;Nessuno;\"=\"\"" +
        CString(36, L'1') + L"\"\"\";;;;;";
    EXPECT_NE(csv.find(L"\n" + line), CString::npos) << Utf8FromWide(csv);
    EXPECT_NE(csv.find(L";1790;1790;-48,9;;2,500;"), CString::npos) << "the sums";
}

TEST_F(PlanScheduleTest, EveryCsvLineHasAFieldForEveryHeading)
{
    std::wistringstream csv(FormatScheduleCsv(SchedulePlan(m_building)));
    CString line;
    std::getline(csv, line);
    const auto headings = std::ranges::count(line, L';');
    int lines = 0;
    for (; std::getline(csv, line); ++lines) {
        EXPECT_EQ(std::ranges::count(line, L';'), headings) << Utf8FromWide(line);
    }
    EXPECT_EQ(lines, 8);
}

TEST_F(PlanScheduleTest, TheWidestTableAndTheLongestNotesStayWithinTheConsole)
{
    const CString wide(60, L'W');
    CRoom room = Room(wide, 2500000.0);
    room.strHersteller = room.strArt = room.strProdukt = wide;
    CPlacedRadiator radiator = Radiator(2000000.0, 10000.0);
    radiator.daten.Hoehe = 2000.0;
    radiator.daten.Elemente = 100.0;
    radiator.daten.Inhalt = 400.0;
    radiator.strTyp = radiator.strHersteller = radiator.strArt = radiator.strProdukt = wide;
    radiator.ventile.vorlauf = CValveKey{CString(140, L'N'), CString(36, L'1')};
    room.heizkoerper = {radiator};
    Add(0, room);
    std::wistringstream text(FormatScheduleText(SchedulePlan(m_building), true));
    int widest = 0;
    for (CString line; std::getline(text, line);) {
        EXPECT_LE(GetDisplayWidth(line), 160) << Utf8FromWide(line);
        widest = std::max(widest, GetDisplayWidth(line));
    }
    EXPECT_GT(widest, 150) << "nothing here is wide";
}

TEST_F(PlanScheduleTest, FurtherRadiatorsStandWithTheirRoomInJson)
{
    const CJsonAt root = JsonOf(SchedulePlan(m_building));
    const std::vector<CJsonAt> rooms = root["floors"][0]["rooms"].All();
    ASSERT_EQ(rooms.size(), 3u);
    EXPECT_EQ(rooms[0]["status"].Text(), L"chosen");
    EXPECT_EQ(rooms[0]["radiator"]["type"].Text(), L"A");
    EXPECT_EQ(rooms[0]["radiator"]["deviationPercent"].Number(), -1.0);
    const std::vector<CJsonAt> further = rooms[0]["furtherRadiators"].All();
    ASSERT_EQ(further.size(), 1u);
    EXPECT_EQ(further[0]["product"].Text(), L"Tipo 11");
    EXPECT_EQ(further[0]["radiator"]["output"].Number(), 390.0);
    EXPECT_EQ(further[0]["valves"]["return"]["status"].Text(), L"notFound");
    EXPECT_EQ(rooms[2]["status"].Text(), L"lacking");
    EXPECT_EQ(rooms[2]["radiator"]["output"].Number(), 800.0);
    EXPECT_EQ(root["floors"][1]["rooms"][0]["status"].Text(), L"missing");
    EXPECT_EQ(root["totals"]["radiators"].Number(), 3);
}

TEST_F(PlanScheduleTest, TheTextNamesARoomOnceAndSaysWhatItLacks)
{
    const CString text = FormatScheduleText(SchedulePlan(m_building), false);
    EXPECT_EQ(text.find(L"Due "), text.rfind(L"Due "));
    EXPECT_NE(text.find(L"    scarso: mancano 200 W (20,0 %)\n"), CString::npos);
    EXPECT_NE(text.find(L"    manca il corpo scaldante: mancano 1500 W (100,0 %)\n"),
              CString::npos);
    EXPECT_NE(text.find(L"Locali: 4; con corpo scaldante: 1; già coperti: 1; da sistemare: 2."),
              CString::npos);
}

TEST_F(PlanScheduleTest, ValvesAreThoseOfTheRadiatorsNotOfTheRooms)
{
    CRoom room = *m_building.floors[0].rooms[0];
    room.ventile.vorlauf = CValveKey{L"Nessuno", CString(36, L'2')};
    m_building.floors[0].rooms[0] = std::make_shared<const CRoom>(room);
    const CSchedule schedule = SchedulePlan(m_building);
    EXPECT_EQ(MakeValveBill(schedule).nMissing, 1);
    EXPECT_EQ(JsonOf(schedule)["valvesMissing"].Number(), 1);
}

} // namespace workbench
