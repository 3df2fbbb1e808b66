#include "workbench/report/plan_tables.h"

#include "platform/encoding.h"
#include "tests/workbench/schedule/schedule_fixture.h"
#include "workbench/schedule/radiator_bill.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_text.h"

#include <QStringList>

#include <iterator>
#include <sstream>

namespace workbench {

namespace {

class PlanScheduleTest : public CScheduleFixture
{
protected:
    static std::string RowOf(const CReportTable& table, std::size_t row)
    {
        const std::vector<QString>& cells = table.rows[row].zellen;
        return QStringList(cells.begin(), cells.end()).join('|').toStdString();
    }
};

} // namespace

TEST_F(PlanScheduleTest, EveryOutputHasEverySum)
{
    const CSchedule schedule = SchedulePlan(m_building);
    const CString text = FormatScheduleText(schedule, false);
    const std::size_t start = text.find(L"Totale dell'edificio");
    std::wistringstream line(text.substr(start, text.find(L'\n', start) - start));
    const std::vector<CString> words{std::istream_iterator<CString, wchar_t>(line), {}};
    EXPECT_EQ(words, (std::vector<CString>{L"Totale", L"dell'edificio", L"4000", L"3500", L"1790",
                                           L"1790", L"−48,9", L"2,5"}));

    const CJsonAt totals = JsonOf(schedule)["totals"];
    const std::pair<const char*, double> sums[] = {
        {"chosen", 1},     {"demand", 4000}, {"deviationPercent", -48.857142857142854},
        {"litres", 2.5},   {"open", 2},      {"output", 1790},
        {"rooms", 4},      {"radiators", 3}, {"outputEN442", 1790},
        {"required", 3500}};
    EXPECT_EQ(totals.All().size(), std::size(sums));
    for (const auto& [name, sum] : sums) {
        EXPECT_DOUBLE_EQ(totals[name].Number(), sum) << name;
    }

    const auto lastRow = [](const CReportTable& table) {
        return RowOf(table, table.rows.size() - 1);
    };
    EXPECT_EQ(lastRow(MakeScheduleTable(schedule)),
              "|Totale dell'edificio||4000|3500|3 corpi scaldanti||||1790|1790|−48,9|2,5||");
    EXPECT_EQ(lastRow(MakeTotalsTable(schedule)),
              "Totale dell'edificio|4|3|2|4000|3500|1790|1790|−48,9|2,5");
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
    const std::vector<CJsonAt> json = JsonOf(schedule)["floors"][0]["rooms"].All();
    const CReportTable open = MakeOpenRoomsTable(schedule);
    const CReportTable sizes = MakeMissizedTable(schedule);
    ASSERT_EQ(open.rows.size(), 2u) << "the high one, and that of the other floor";
    EXPECT_EQ(RowOf(open, 0), "Terra|Alto|troppo grande per il posto|1000|1000||");
    const struct
    {
        CString name, status, note;
        CString code;
    } expected[] = {
        {L"Alto", L"troppo grande per il posto", L"altezza 900 mm, consentiti 720 mm", L"tooLarge"},
        {L"Forte", L"sovradimensionato", L"200 W in più (20,0 %, limite 15 %)", L"oversized"},
    };
    ASSERT_EQ(sizes.rows.size(), std::size(expected));
    for (std::size_t i = 0; i < 2; ++i) {
        const auto& [name, status, note, code] = expected[i];
        const std::size_t line = csv.find(L"Terra;" + name + L";" + status + L";");
        ASSERT_NE(line, CString::npos) << Utf8FromWide(csv);
        EXPECT_TRUE(csv.substr(line, csv.find(L'\r', line) - line).ends_with(L";" + note));
        EXPECT_NE(text.find(L"\n    " + status + L": " + note + L"\n"), CString::npos)
            << Utf8FromWide(text);
        EXPECT_EQ(json[i]["status"].Text(), code);
        EXPECT_EQ(json[i]["note"].Text(), note);
        EXPECT_FALSE(json[i]["radiator"].All().empty());
        EXPECT_EQ(RowOf(sizes, i), Utf8FromWide(L"Terra|" + name + L"|" + status + L"|" + note));
    }
}

} // namespace workbench
