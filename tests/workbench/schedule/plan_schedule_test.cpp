#include "platform/encoding.h"
#include "tests/workbench/plan/plan_fixture.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_json.h"
#include "workbench/schedule/schedule_text.h"
#include "workbench/schedule/valve_bill.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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
};

} // namespace

TEST_F(PlanScheduleTest, ColumnsOfTheCsvFileSumToItsTotals)
{
    const CString csv = FormatScheduleCsv(SchedulePlan(m_building));
    for (const CString line :
         {L"Terra;Due;scelto;20;1200;200;1000;Prova;Radiatori a piastra;Tipo 22;A;600;100;"
          L"1000;600;600;-1.0;0;2.500;;;;;;;;;;;;;",
          L"Terra;Due;scelto;20;;;;Prova;Radiatori a piastra;Tipo 11;B;600;100;1000;390;390;"
          L";0;0.000;;;;;;;Nessuno;111111111111111111111111111111111111;;;;;\"ritorno: la "
          L"cartella delle valvole non ha il produttore \"\"Nessuno\"\"\"",
          L"Terra;Debole;insufficiente;20;1000;0;1000;Prova;Radiatori a piastra;Tipo 22;;"
          L"600;100;1000;800;800;-20.0;0;0.000;;;;;;;;;;;;;mancano 200 W (20.0 %)",
          L"Terra;Coperto;già coperto;20;300;300;0;Prova;Radiatori a piastra;Tipo 22;;;"
          L";;;;;;;;;;;;;;;;;;;nessun corpo scaldante necessario",
          L"Primo;Camera;manca il corpo scaldante;20;1500;0;1500;Prova;Radiatori a "
          L"piastra;Tipo 22;;;;;;;;;;;;;;;;;;;;;;mancano 1500 W (100.0 %)",
          L"Terra;;totale del piano;;2500;;2000;;;;;;;;1790;1790;-10.5;;2.500;;"
          L";;;;;;;;;;;",
          L";;totale dell'edificio;;4000;;3500;;;;;;;;1790;1790;-48.9;;2.500;;;;;;;;;;;;;"}) {
        EXPECT_NE(csv.find(L"\n" + line + L"\r"), CString::npos)
            << Utf8FromWide(line + L"\nin\n" + csv);
    }
}

TEST_F(PlanScheduleTest, FurtherRadiatorsStandWithTheirRoomInJson)
{
    const auto root = QJsonDocument::fromJson(
                          QByteArray::fromStdString(FormatScheduleJson(SchedulePlan(m_building))))
                          .object();
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
    EXPECT_NE(text.find(L"    insufficiente: mancano 200 W (20.0 %)\n"), CString::npos);
    EXPECT_NE(text.find(L"    manca il corpo scaldante: mancano 1500 W (100.0 %)\n"),
              CString::npos);
    EXPECT_NE(text.find(L"Locali: 4; con corpo scaldante: 1; già coperti: 1; senza corpo scaldante "
                        L"adatto: 2."),
              CString::npos);
}

TEST_F(PlanScheduleTest, ValvesAreThoseOfTheRadiatorsNotOfTheRooms)
{
    CRoom room = *m_building.floors[0].rooms[0];
    room.ventile.vorlauf = CValveKey{L"Nessuno", CString(36, L'2')};
    m_building.floors[0].rooms[0] = std::make_shared<const CRoom>(room);
    EXPECT_EQ(MakeValveBill(SchedulePlan(m_building)).nMissing, 1);
}

} // namespace workbench
