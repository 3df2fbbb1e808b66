#include "tests/workbench/building/building_fixture.h"

#include <tuple>

namespace workbench {

namespace {

const std::string kBuilding = R"({
  "version": 1,
  "name": "Casa",
  "note": ["per chi legge"],
  "system": { "supply": 70, "return": 55.5 },
  "clearance": { "floor": 100, "sill": 80 },
  "floors": [
    { "name": "Terra", "rooms": [
      { "name": "Città", "note": 1, "temperature": 20, "demand": 1000, "covered": 150.5,
        "window": { "sill": 900, "width": 1200 }, "depthMin": 50, "depthMax": 120,
        "radiator": { "maker": "M", "kind": "K", "product": "P" } },
      { "name": "Atrio", "temperature": 18, "demand": 0,
        "wall": { "height": 2000, "width": 600 },
        "radiator": { "maker": "M2", "kind": "K2", "product": "P2" } }
    ] }
  ]
}
)";

const std::string kNumber36(36, '7');
const std::string kNumber30(30, '3');

std::string Valve(const std::string& maker, const std::string& number)
{
    return R"({ "maker": ")" + maker + R"(", "number": ")" + number + "\" }";
}

class BuildingJson : public CBuildingFixture
{
protected:
    /// The building with valves of its own and for its first room; an empty text: none.
    static std::string WithValves(const std::string& ofBuilding, const std::string& ofRoom)
    {
        std::string text = Replaced(kBuilding, "\"name\": \"Città\",",
                                    "\"name\": \"Città\"," +
                                        (ofRoom.empty() ? "" : "\"valves\": " + ofRoom + ","));
        return text.insert(1, ofBuilding.empty() ? "" : "\"valves\": " + ofBuilding + ",");
    }
};

} // namespace

TEST_F(BuildingJson, LimitsFollowFromWindowOrWall)
{
    const CBuilding building = Read(kBuilding);

    EXPECT_EQ(building.strName, L"Casa");
    EXPECT_EQ(building.system.ruecklauf, 55.5);
    ASSERT_EQ(building.floors.size(), 1u);
    ASSERT_EQ(building.floors[0].rooms.size(), 2u);

    const CRoom& window = *building.floors[0].rooms[0];
    EXPECT_EQ(window.strName, L"Città");
    EXPECT_EQ(window.GetLeistung(), 849.5);
    EXPECT_EQ(window.grenzen.hoeheMax, 720.0); // 900 - 100 - 80
    EXPECT_EQ(window.grenzen.laengeMax, 1200.0);
    EXPECT_EQ(window.grenzen.tiefeMin, 50.0);
    EXPECT_EQ(window.grenzen.tiefeMax, 120.0);
    EXPECT_EQ(window.strProdukt, L"P");

    const CRoom& wall = *building.floors[0].rooms[1];
    EXPECT_EQ(wall.grenzen.hoeheMax, 1900.0); // 2000 - 100
    EXPECT_EQ(wall.gedeckt, 0.0);
    EXPECT_GE(wall.grenzen.tiefeMax, 10000.0);
}

TEST_F(BuildingJson, WrongFieldsAreNamedWithTheirRoom)
{
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"\"version\": 1", "\"version\": 3",
         "campo \"version\": il file è di una versione più recente del programma"},
        {"\"name\": \"Casa\",", "", "campo \"name\": manca"},
        {"55.5", "70", "campo \"return\": deve essere maggiore di 0 e minore di \"supply\""},
        {"\"sill\": 80", "\"sill\": -1", "campo \"sill\": -1 è fuori dall'intervallo da 0 a 20000"},
        {"\"name\": \"Terra\", \"rooms\"", "\"name\": \"Terra\", \"room\"",
         "piano \"Terra\": campo \"rooms\": manca"},
        {"\"name\": \"Città\"", "\"name\": 3",
         "piano \"Terra\", locale 1: campo \"name\": atteso un testo"},
        {"Città", " ", "piano \"Terra\", locale 1: campo \"name\": il testo è vuoto"},
        {"Città", "a\\u001b[2J",
         "piano \"Terra\", locale 1: campo \"name\": il testo contiene caratteri di controllo"},
        {"\"temperature\": 20", "\"temperature\": 55.5", // no radiator heats above its return
         "locale \"Città\": campo \"temperature\": 55.5 è fuori dall'intervallo da 0 a 40"},
        {"\"supply\": 70, \"return\": 55.5", "\"supply\": 30, \"return\": 20",
         "locale \"Città\": campo \"temperature\": deve essere minore del ritorno, 20 °C"},
        {"\"demand\": 1000", "\"demand\": \"1000\"",
         "locale \"Città\": campo \"demand\": atteso un numero"},
        {"\"demand\": 1000", "\"demand\": 1e300",
         "locale \"Città\": campo \"demand\": 1e+300 è fuori dall'intervallo da 0 a 50000"},
        {"\"covered\"", "\"coverd\"", "locale \"Città\": campo \"coverd\": campo sconosciuto"},
        {"\"sill\": 900", "\"sill\": 180",
         "locale \"Città\": campo \"sill\": non lascia spazio sopra la distanza da terra"},
        {"\"wall\"", "\"window\": {}, \"wall\"",
         "locale \"Atrio\": campo \"window\": serve uno solo tra \"window\" e \"wall\""},
        {"\"depthMin\": 50", "\"depthMin\": 121",
         "locale \"Città\": campo \"depthMin\": supera \"depthMax\""},
        {"\"product\": \"P\"", "\"produkt\": \"P\"", "locale \"Città\": campo \"product\": manca"},
    };
    for (const auto& [from, to, message] : cases) {
        EXPECT_EQ(ErrorOf(Replaced(kBuilding, from, to)), message);
    }
}

TEST_F(BuildingJson, TheProjectMayBeLeftOutWholeOrInPart)
{
    const auto with = [](const std::string& project) {
        return Replaced(kBuilding, "\"system\"", "\"project\": " + project + ", \"system\"");
    };
    EXPECT_EQ(Read(kBuilding).project, CProject());
    EXPECT_EQ(FormatBuilding(Read(with("{}"))), FormatBuilding(Read(kBuilding)));
    EXPECT_EQ(Read(with(R"({"client": "Bruni", "date": "2026-03-01"})")).project,
              (CProject{L"Bruni", L"", L"", L"2026-03-01"}));
    const std::pair<const char*, const char*> faults[] = {
        {R"({"date": "01/03/2026"})", "campo \"date\": attesa una data come \"2026-03-01\""},
        {R"({"date": "2026-02-30"})", "campo \"date\": attesa una data come \"2026-03-01\""},
        {R"({"client": " "})", "campo \"client\": il testo è vuoto"},
        {R"({"customer": "Bruni"})", "campo \"customer\": campo sconosciuto"},
        {R"("Bruni")", "campo \"project\": atteso un oggetto { }"},
    };
    for (const auto& [project, message] : faults) {
        EXPECT_EQ(ErrorOf(with(project)), message);
    }
}

TEST_F(BuildingJson, ValvesOfARoomWinPieceByPiece)
{
    const std::string all =
        "{\"supply\": " + Valve("A", kNumber36) + ", \"return\": " + Valve("B", kNumber36) + "}";
    const std::string onlyReturn = "{\"note\": 1, \"return\": " + Valve("C", kNumber30) + "}";
    const struct
    {
        std::string building, room;
        CString supply, back;
    } cases[] = {
        {"", "", L"", L""},          {all, "", L"A", L"B"},
        {all, "{}", L"A", L"B"},     {all, onlyReturn, L"A", L"C"},
        {"", onlyReturn, L"", L"C"}, {all, "{\"supply\": null}", L"", L"B"},
    };
    for (const auto& test : cases) {
        const CBuilding building = Read(WithValves(test.building, test.room));
        const CValveKeys& first = building.floors[0].rooms[0]->ventile;
        const CValveKeys& second = building.floors[0].rooms[1]->ventile;
        EXPECT_EQ(first.vorlauf.value_or(CValveKey()).strHersteller, test.supply) << test.room;
        EXPECT_EQ(first.ruecklauf.value_or(CValveKey()).strHersteller, test.back) << test.room;
        EXPECT_EQ(second.ruecklauf.has_value(), !test.building.empty()) << test.room;
        EXPECT_EQ(HasValves(building), !test.building.empty() || !test.room.empty());
    }
}

TEST_F(BuildingJson, WrongValvesAreNamedWithTheirRoom)
{
    const std::pair<std::string, std::string> cases[] = {
        {"[]", "campo \"valves\": atteso un oggetto { }"},
        {"{\"supply\": 1}", "campo \"supply\": atteso un oggetto { }"},
        {"{\"suply\": null}", "campo \"suply\": campo sconosciuto"},
        {"{\"supply\": {\"maker\": \"A\"}}", "campo \"number\": manca"},
        {"{\"return\": " + Valve(" ", kNumber36) + "}", "campo \"maker\": il testo è vuoto"},
        {"{\"return\": " + Valve("A", kNumber30.substr(1)) + "}",
         "campo \"number\": ha 29 caratteri, ne servono almeno 30"},
    };
    for (const auto& [room, message] : cases) {
        EXPECT_EQ(ErrorOf(WithValves("", room)), "locale \"Città\": " + message);
        EXPECT_EQ(ErrorOf(WithValves(room, "")), message);
    }
}

TEST_F(BuildingJson, DamagedFileIsToldByLineAndColumn)
{
    EXPECT_EQ(ErrorOf(Replaced(kBuilding, "\"version\": 1,", "\"version\": 1")).substr(0, 6),
              "riga 3");
    // The accent is two bytes and one column.
    EXPECT_EQ(ErrorOf("{\n \"città\": tru }").substr(0, 18), "riga 2, colonna 15");
    EXPECT_EQ(ErrorOf(""), "riga 1, colonna 1: non è JSON valido");
    EXPECT_EQ(ErrorOf("[1]"), "atteso un oggetto { } al livello più alto");
    EXPECT_EQ(ErrorOf(Replaced(kBuilding, "Città", "Citt\xe0")).substr(0, 6), "riga 9");
}

} // namespace workbench
