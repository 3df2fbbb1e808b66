#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/whole_file.h"
#include "tests/src/platform/thrown.h"
#include "tests/support/file_size_limit.h"
#include "tests/workbench/building/building_fixture.h"

#include <tuple>

namespace workbench {

namespace {

/// A building with every field that there is, with texts that are hard to write and numbers that
/// must not lose a digit.
std::string EveryField()
{
    const CString file = WideFromUtf8(RADSEL_TESTS_DIR "/workbench/building/every_field.json");
    return ReadWholeFile(file).value_or("");
}

using BuildingFileTest = CBuildingFixture;

/// Two rooms of a floor side by side, and one above.
const std::string kPlan = R"({ "version": 2, "name": "Casa",
  "system": { "supply": 70, "return": 55 }, "clearance": { "floor": 100, "sill": 80 },
  "floors": [
    { "name": "Terra", "rooms": [
      { "name": "Uno", "temperature": 20, "demand": 1000,
        "outline": { "x": 0, "y": 0, "width": 4000, "depth": 3000 },
        "places": [ { "window": { "sill": 900, "width": 1200, "side": "south", "offset": 2800 } },
                    { "wall": { "height": 2000, "width": 800, "side": "east", "offset": 0 } } ],
        "radiator": { "maker": "M", "kind": "K", "product": "P" },
        "radiators": [ { "place": 1, "maker": "M", "kind": "K", "product": "P", "type": "T",
          "row": { "height": 600, "depth": 100, "length": 700, "outputEN442": 900, "output": 800,
                   "sections": 0, "exponent": 1.3, "litres": 4, "rating": "M" },
          "distance": { "wall": 0.05, "floor": 0.1 }, "layer": { "name": "L", "colour": 1 } } ] },
      { "name": "Due", "temperature": 20, "demand": 1000,
        "outline": { "x": 3700, "y": 0, "width": 4000, "depth": 3000 },
        "places": [ { "window": { "sill": 900, "width": 1200, "side": "north", "offset": 0 } } ],
        "radiator": { "maker": "M", "kind": "K", "product": "P" } } ] },
    { "name": "Primo", "rooms": [
      { "name": "Tre", "temperature": 20, "demand": 1000,
        "outline": { "x": 0, "y": 0, "width": 4000, "depth": 3000 },
        "places": [ { "window": { "sill": 900, "width": 1200, "side": "west", "offset": 0 } } ],
        "radiator": { "maker": "M", "kind": "K", "product": "P" } } ] } ] })";

} // namespace

TEST_F(BuildingFileTest, EveryFieldComesBackExactly)
{
    WriteBuilding(m_folder.Path("again.json"), Read(EveryField()));
    EXPECT_EQ(m_folder.ReadBytes("again.json"), EveryField());
}

TEST_F(BuildingFileTest, TheSampleIsWrittenAsItStands)
{
    const CString file = WideFromUtf8(RADSEL_DATA_DIR "/buildings/villa-dei-tigli.json");
    const std::string bytes = ReadWholeFile(file).value_or("");
    EXPECT_EQ(FormatBuilding(Read(bytes)), bytes);
    EXPECT_EQ(Read(bytes).ueberschussMax, 15.0) << "files of before have no limit";
}

TEST_F(BuildingFileTest, ANoteOfAnyKindIsWrittenAsItWasRead)
{
    const std::string note =
        R"({"a":[1,true,null,-0.25],"b":"x\n\"y\"","c":9007199254740993,"d\\\"":{}})";
    const CBuilding building =
        Read(Replaced(kPlan, "\"name\": \"Uno\",", "\"name\": \"Uno\", \"note\": " + note + ","));
    const std::string written = FormatBuilding(building);
    EXPECT_NE(written.find("\"note\": " + note), std::string::npos) << written;
}

TEST_F(BuildingFileTest, NotesWithinARoomJoinItsOwn)
{
    const std::string noted =
        Replaced(Replaced(kPlan, "\"name\": \"Uno\",", "\"name\": \"Uno\", \"note\": \"a\","),
                 "\"name\": \"L\",", "\"name\": \"L\", \"note\": [\"b\"],");
    const CBuilding building = Read(noted);
    EXPECT_EQ(building.floors[0].rooms[0]->strNotiz, L"[\"a\",[\"b\"]]");
    EXPECT_EQ(building.floors[0].strNotiz, L"");
    EXPECT_EQ(building.strNotiz, L"");
}

TEST_F(BuildingFileTest, WrongFieldsAreNamedWithTheirRoom)
{
    ASSERT_EQ(ErrorOf(kPlan), "");
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"\"Tre\"", "\"Uno\"", "locale \"Uno\": campo \"name\": il nome è già di un altro locale"},
        {"\"Primo\"", "\"Terra\"",
         "piano \"Terra\": campo \"name\": il nome è già di un altro piano"},
        {"\"floors\"", "\"oversizedAbove\": -1, \"floors\"",
         "campo \"oversizedAbove\": -1 è fuori dall'intervallo da 0 a 1000"},
        {"\"depth\": 3000", "\"depth\": 0",
         "locale \"Uno\": campo \"depth\": deve essere maggiore di 0"},
        {"3700", "3699.5", // a wall's thickness is 300
         "locale \"Due\": campo \"outline\": si sovrappone al locale \"Uno\" per 300.5 mm"},
        {"\"offset\": 2800", "\"offset\": 2801",
         "locale \"Uno\", posto 1: campo \"offset\": il posto esce dalla sua parete, lunga 4000 "
         "mm"},
        {"\"east\", \"offset\": 0", "\"east\", \"offset\": 2500",
         "locale \"Uno\", posto 2: campo \"offset\": il posto esce dalla sua parete, lunga 3000 "
         "mm"},
        {"\"south\"", "\"sud\"",
         "locale \"Uno\", posto 1: campo \"side\": atteso \"south\", \"east\", \"north\" o "
         "\"west\""},
        {"\"height\": 2000", "\"height\": 100",
         "locale \"Uno\", posto 2: campo \"height\": non lascia spazio sopra la distanza da "
         "terra"},
        {"\"place\": 1", "\"place\": 2",
         "locale \"Uno\", corpo scaldante 1: campo \"place\": 2 è fuori dall'intervallo da 0 a 1"},
        {"\"place\": 1", "\"place\": 0.5",
         "locale \"Uno\", corpo scaldante 1: campo \"place\": atteso un numero intero"},
        {"\"rating\": \"M\"", "\"rating\": \"\"",
         "locale \"Uno\", corpo scaldante 1: campo \"rating\": atteso un solo carattere"},
        {"\"length\": 700", "\"length\": 100001",
         "locale \"Uno\", corpo scaldante 1: campo \"length\": 100001 è fuori dall'intervallo da 0 "
         "a 100000"},
        {"\"colour\"", "\"color\"", "locale \"Uno\", corpo scaldante 1: campo \"colour\": manca"},
        {"\"places\": [", "\"places\": [ {},",
         "locale \"Uno\", posto 1: campo \"window\": serve uno solo tra \"window\" e \"wall\""},
        {"\"version\": 2", "\"version\": 1",
         "locale \"Uno\": campo \"window\": serve uno solo "
         "tra \"window\" e \"wall\""},
    };
    for (const auto& [from, to, message] : cases) {
        EXPECT_EQ(ErrorOf(Replaced(kPlan, from, to)), message);
    }
    const std::size_t first = kPlan.find("{ \"place\"");
    const std::size_t end = kPlan.find(" ] },", first);
    const std::string radiator = kPlan.substr(first, end - first);
    EXPECT_EQ(ErrorOf(Replaced(kPlan, radiator, radiator + ", " + radiator)),
              "locale \"Uno\", corpo scaldante 2: campo \"place\": il posto è già occupato");
    for (const std::string wrong : {"", ", null"}) {
        EXPECT_EQ(
            ErrorOf(Replaced(EveryField(), ", 5e-324", wrong)),
            "locale \"Città\", corpo scaldante 1: campo \"position\": atteso un elenco [ ] di "
            "tre numeri");
    }
}

TEST_F(BuildingFileTest, TheFirstVersionGetsAPlan)
{
    const std::string head = R"({ "version": 1, "name": "Casa",
        "system": { "supply": 70, "return": 55 }, "clearance": { "floor": 100, "sill": 80 },
        "floors": [)";
    const auto room = [](const std::string& name, int demand, int width) {
        return R"({ "name": ")" + name + R"(", "temperature": 20, "demand": )" +
               std::to_string(demand) + R"(, "window": { "sill": 900, "width": )" +
               std::to_string(width) +
               R"( }, "radiator": { "maker": "M", "kind": "K", "product": "P" } })";
    };
    const std::string floors = R"({ "name": "Terra", "rooms": [)" + room("A", 960, 1200) + "," +
                               room("B", 960, 5000) + "," + room("C", 0, 100) + "," +
                               room("D", 1920, 1000) + R"(] },
        { "name": "Terra", "rooms": [)" +
                               room("E", 0, 0) + "] }";
    const CBuilding building = Read(head + floors + "] }");
    EXPECT_EQ(building.floors[1].strName, L"Terra (2)");

    // 60 W/m2, at least 4 m2: 16, 16, 4 and 32 m2, so that the depth is the root of 17 m2, 4130 mm.
    // The widths are 16 m2 / 4.13 m = 3874, the window's, the least and 32 m2 / 4.13 m = 7748, in
    // whole centimetres. A room goes to the row that is shorter so far.
    const struct
    {
        double x, y, width, offset;
        Wall wall;
    } expected[] = {
        {0.0, 0.0, 3880.0, 1340.0, Wall::sued},
        {0.0, 5630.0, 5000.0, 0.0, Wall::nord},
        {3980.0, 0.0, 1500.0, 700.0, Wall::sued},
        {5100.0, 5630.0, 7750.0, 3375.0, Wall::nord},
    };
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const CRoom& read = *building.floors[0].rooms[i];
        EXPECT_EQ(read.grundriss.x, expected[i].x) << i;
        EXPECT_EQ(read.grundriss.y, expected[i].y) << i;
        EXPECT_EQ(read.grundriss.breite, expected[i].width) << i;
        EXPECT_EQ(read.grundriss.tiefe, 4130.0) << i;
        EXPECT_EQ(read.plaetze[0].abstand, expected[i].offset) << i;
        EXPECT_EQ(read.plaetze[0].wand, expected[i].wall) << i;
    }
    EXPECT_EQ(ErrorOf(FormatBuilding(building)), "") << "what was made up passes its own checks";
}

TEST_F(BuildingFileTest, AFailingSaveKeepsTheOldFileAndNamesIt)
{
    const CBuilding building = Read(EveryField());
    m_folder.WriteBytes("casa.json", "old");
    m_folder.WriteBytes("cartella/x", "");
    const CFileSizeLimit limit(1000);
    for (const CString& path :
         {m_folder.Path("casa.json"), m_folder.Path("cartella"), m_folder.Path("manca/casa.json"),
          CString(L"/proc/casa.json"), m_folder.Path("casa.json/casa.json")}) {
        const CString message = MessageOf<CFileException>([&] { WriteBuilding(path, building); });
        EXPECT_NE(message.find(path), CString::npos) << Utf8FromWide(path);
    }
    EXPECT_EQ(m_folder.ReadBytes("casa.json"), "old");
    const auto entries = std::filesystem::directory_iterator(m_folder.Root());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2) << "a leftover";
}

} // namespace workbench
