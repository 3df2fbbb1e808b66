#include "platform/encoding.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/report/plan_tables.h"
#include "workbench/schedule/radiator_bill.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_json.h"
#include "workbench/schedule/schedule_text.h"
#include "workbench/schedule/text_columns.h"
#include "workbench/schedule/valve_bill.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <sstream>

namespace workbench {

namespace {

/// A room with two radiators that cover it, one with a radiator that is too weak, one without, and
/// one that needs none. The radiators are of another product than the rooms ask for.
class PlanScheduleTest : public CPlanFixture
{
protected:
    PlanScheduleTest()
    {
        m_building.strName = L"Casa";
        m_building.floors[0].rooms.clear();
        CRoom two = Room(L"Due", 1200.0);
        two.gedeckt = 200.0;
        two.heizkoerper = {Radiator(600.0), Radiator(390.0)};
        two.heizkoerper[0].strTyp = L"A";
        two.heizkoerper[0].daten.Inhalt = 2.5;
        two.heizkoerper[1].strTyp = L"B";
        two.heizkoerper[1].strProdukt = L"Tipo 11";
        two.heizkoerper[1].ventile.ruecklauf = CValveKey{L"Nessuno", CString(36, L'1')};
        Add(0, two);
        CRoom covered = Room(L"Coperto", 300.0);
        covered.gedeckt = 300.0;
        Add(0, covered);
        CRoom weak = Room(L"Debole", 1000.0);
        weak.heizkoerper = {Radiator(800.0)};
        Add(0, weak);
    }

    static QJsonObject JsonOf(const CSchedule& schedule)
    {
        return QJsonDocument::fromJson(QByteArray::fromStdString(FormatScheduleJson(schedule)))
            .object();
    }

    static std::string RowOf(const CReportTable& table, std::size_t row)
    {
        const std::vector<QString>& cells = table.rows[row].zellen;
        return QStringList(cells.begin(), cells.end()).join('|').toStdString();
    }
};

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

TEST_F(PlanScheduleTest, EveryOutputHasEverySum)
{
    const CSchedule schedule = SchedulePlan(m_building);
    const CString text = FormatScheduleText(schedule, false);
    const std::size_t start = text.find(L"Totale dell'edificio");
    std::wistringstream line(text.substr(start, text.find(L'\n', start) - start));
    const std::vector<CString> words{std::istream_iterator<CString, wchar_t>(line), {}};
    EXPECT_EQ(words, (std::vector<CString>{L"Totale", L"dell'edificio", L"4000", L"3500", L"1790",
                                           L"1790", L"−48,9", L"2,5"}));

    const QJsonObject totals = JsonOf(schedule)["totals"].toObject();
    const std::pair<const char*, double> sums[] = {
        {"chosen", 1},     {"demand", 4000}, {"deviationPercent", -48.857142857142854},
        {"litres", 2.5},   {"open", 2},      {"output", 1790},
        {"rooms", 4},      {"radiators", 3}, {"outputEN442", 1790},
        {"required", 3500}};
    EXPECT_EQ(totals.size(), qsizetype(std::size(sums)));
    for (const auto& [name, sum] : sums) {
        EXPECT_DOUBLE_EQ(totals[name].toDouble(), sum) << name;
    }

    const auto lastRow = [](const CReportTable& table) {
        return RowOf(table, table.rows.size() - 1);
    };
    EXPECT_EQ(lastRow(MakeScheduleTable(schedule)),
              "|Totale dell'edificio||4000|3500|3 corpi scaldanti||||1790|1790|−48,9|2,5||");
    EXPECT_EQ(lastRow(MakeTotalsTable(schedule)),
              "Totale dell'edificio|4|3|2|4000|3500|1790|1790|−48,9|2,5");
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
    const QJsonObject root = JsonOf(SchedulePlan(m_building));
    const QJsonArray rooms = root["floors"][0]["rooms"].toArray();
    ASSERT_EQ(rooms.size(), 3);
    EXPECT_EQ(rooms[0]["status"], "chosen");
    EXPECT_EQ(rooms[0]["radiator"]["type"], "A");
    EXPECT_EQ(rooms[0]["radiator"]["deviationPercent"], -1.0);
    const QJsonArray further = rooms[0]["furtherRadiators"].toArray();
    ASSERT_EQ(further.size(), 1);
    EXPECT_EQ(further[0]["product"], "Tipo 11");
    EXPECT_EQ(further[0]["radiator"]["output"], 390.0);
    EXPECT_EQ(further[0]["valves"]["return"]["status"], "notFound");
    EXPECT_EQ(rooms[2]["status"], "lacking");
    EXPECT_EQ(rooms[2]["radiator"]["output"], 800.0);
    EXPECT_EQ(root["floors"][1]["rooms"][0]["status"], "missing");
    EXPECT_EQ(root["totals"]["radiators"], 3);
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

TEST_F(PlanScheduleTest, RadiatorsAreOrderedBySizeUnderTheNumbersOfTheirCatalogue)
{
    m_folder.WriteBytes("Prova/hk.tga", "010;2010-05;Prova S.p.A.;2026-01\n"
                                        "100;1;Radiatori a piastra\n110;1;Tipo 22\n"
                                        "700;1;22/600;M;600;100;1000;1.3;5\n"
                                        "710.01;1;500\n710.01;2;1000\n800;1;1000;P22-1000\n");
    CRoom room = Room(L"Altro", 1000.0);
    room.heizkoerper = {Radiator(500.0, 500.0), Radiator(800.0), Radiator(800.0)};
    for (CPlacedRadiator& radiator : room.heizkoerper) {
        radiator.strTyp = L"22/600";
    }
    m_building.floors[0].rooms.clear();
    Add(0, room);
    const CSchedule schedule = SchedulePlan(m_building);
    const CRadiatorBill bill = MakeRadiatorBill(schedule);
    EXPECT_EQ(bill.nRadiators, 3);
    ASSERT_EQ(bill.items.size(), 2u);
    EXPECT_EQ(bill.items[0].masse.laenge, 500.0);
    EXPECT_EQ(bill.items[0].strBestellNr, L"");
    EXPECT_EQ(bill.items[1].strBestellNr, L"P22-1000");
    EXPECT_EQ(bill.items[1].nAnzahl, 2);

    const CReportTable table = MakeRadiatorOrderTable(schedule);
    ASSERT_EQ(table.rows.size(), 3u);
    const auto& cells = table.rows[1].zellen;
    EXPECT_EQ(QStringList(cells.begin(), cells.end()).join('|'),
              "Prova|Tipo 22|22/600|600 × 100 × 1000||P22-1000|2");
    EXPECT_EQ(table.rows[0].zellen[5], "–") << "what is made to measure";
    EXPECT_EQ(table.rows[2].zellen.back(), "3");
}

TEST_F(PlanScheduleTest, ValvesAreThoseOfTheRadiatorsNotOfTheRooms)
{
    CRoom room = *m_building.floors[0].rooms[0];
    room.ventile.vorlauf = CValveKey{L"Nessuno", CString(36, L'2')};
    m_building.floors[0].rooms[0] = std::make_shared<const CRoom>(room);
    const CSchedule schedule = SchedulePlan(m_building);
    EXPECT_EQ(MakeValveBill(schedule).nMissing, 1);
    EXPECT_EQ(JsonOf(schedule)["valvesMissing"], 1);
}

TEST_F(PlanScheduleTest, EveryOutputTellsSizesThatOughtToBeOthers)
{
    CRoom high = Room(L"Alto", 1000.0);
    high.heizkoerper = {Radiator(1000.0)};
    high.heizkoerper[0].daten.Hoehe = 900.0;
    CRoom strong = Room(L"Forte", 1000.0);
    strong.plaetze.push_back(strong.plaetze[0]);
    strong.heizkoerper = {Radiator(600.0), Radiator(600.0)};
    strong.heizkoerper[1].nPlatz = 1;
    m_building.floors[0].rooms.clear();
    Add(0, high);
    Add(0, strong);
    const CSchedule schedule = SchedulePlan(m_building);
    EXPECT_EQ(schedule.floors[0].totals.nOpen, 1);
    EXPECT_EQ(schedule.floors[0].totals.nChosen, 1);
    EXPECT_EQ(schedule.floors[0].totals.nHeizkoerper, 3);

    const CString csv = FormatScheduleCsv(schedule, CsvForm::plain);
    const CString text = FormatScheduleText(schedule, false);
    const QJsonArray json = JsonOf(schedule)["floors"][0]["rooms"].toArray();
    const CReportTable open = MakeOpenRoomsTable(schedule);
    const CReportTable sizes = MakeMissizedTable(schedule);
    ASSERT_EQ(open.rows.size(), 2u) << "the high one, and that of the other floor";
    EXPECT_EQ(RowOf(open, 0), "Terra|Alto|troppo grande per il posto|1000|1000||");
    const struct
    {
        CString name, status, note;
        const char* code;
    } expected[] = {
        {L"Alto", L"troppo grande per il posto", L"altezza 900 mm, consentiti 720 mm", "tooLarge"},
        {L"Forte", L"sovradimensionato", L"200 W in più (20,0 %, limite 15 %)", "oversized"},
    };
    ASSERT_EQ(sizes.rows.size(), std::size(expected));
    for (qsizetype i = 0; i < 2; ++i) {
        const auto& [name, status, note, code] = expected[i];
        const std::size_t line = csv.find(L"Terra;" + name + L";" + status + L";");
        ASSERT_NE(line, CString::npos) << Utf8FromWide(csv);
        EXPECT_TRUE(csv.substr(line, csv.find(L'\r', line) - line).ends_with(L";" + note));
        EXPECT_NE(text.find(L"\n    " + status + L": " + note + L"\n"), CString::npos)
            << Utf8FromWide(text);
        EXPECT_EQ(json[i]["status"], code);
        EXPECT_EQ(json[i]["note"].toString().toStdWString(), note);
        EXPECT_TRUE(json[i]["radiator"].isObject());
        EXPECT_EQ(RowOf(sizes, static_cast<std::size_t>(i)),
                  Utf8FromWide(L"Terra|" + name + L"|" + status + L"|" + note));
    }
}

} // namespace workbench
