#include "workbench/batch/batch_program.h"

#include "common/text_file.h"
#include "platform/whole_file.h"
#include "tests/workbench/batch/batch_fixture.h"
#include "workbench/schedule/text_columns.h"

#include <tuple>

namespace workbench {

namespace {

/// The lines of an output, or the fields of a line.
CStringArray Split(const std::string& text, wchar_t separator)
{
    CStringArray parts;
    SplitString(parts, WideFromUtf8(text), separator);
    return parts;
}

class BatchTest : public CBatchFixture
{
protected:
    BatchTest() : CBatchFixture(GetBatchProgram()) {}
};

} // namespace

TEST_F(BatchTest, SampleBuildingGivesFilesThatAgreeWithTheScreen)
{
    ASSERT_EQ(Run({}), ExitCode::ok) << m_err.str();
    EXPECT_EQ(m_err.str(), "");

    int rooms = 0, unfitting = 0, valves = 0;
    double output = 0.0, demand = 0.0;
    const CJsonAt json = ReadJson();
    for (const CJsonAt& floor : json["floors"].All()) {
        for (const CJsonAt& room : floor["rooms"].All()) {
            ++rooms;
            unfitting += room["status"].Text() == L"unfitting" ? 1 : 0;
            demand += room["demand"].Number();
            const CJsonAt radiator = room["radiator"];
            output += radiator["output"].Number();
            for (const CJsonAt& valve : room["valves"].All()) {
                valves += valve["status"].Text() == L"found" ? 1 : 0;
            }
            if (room["status"].Text() == L"chosen") {
                const double required = room["demand"].Number() - room["covered"].Number();
                EXPECT_GE(radiator["output"].Number(), 0.9 * required);
                EXPECT_LE(radiator["height"].Number(), room["heightMax"].Number());
                EXPECT_LE(radiator["length"].Number(), room["lengthMax"].Number());
            }
        }
    }
    EXPECT_EQ(rooms, 18);
    EXPECT_EQ(unfitting, 2);
    EXPECT_EQ(json["totals"]["output"].Number(), output);
    int ordered = 0;
    for (const CJsonAt& item : json["valves"].All()) {
        ordered += static_cast<int>(item["count"].Number());
    }
    // Fifteen radiators with two valves each, less two with a built-in valve, one with a single
    // pipe and one whose supply valve no file knows.
    EXPECT_EQ(valves, 26);
    EXPECT_EQ(ordered, valves);
    EXPECT_EQ(json["totals"]["demand"].Number(), demand);

    const CStringArray lines = Split(m_folder.ReadBytes("out/corpi-scaldanti.csv"), L'\n');
    ASSERT_EQ(lines.GetSize(), 1 + 18 + 2 + 1);
    EXPECT_EQ(std::stod(Split(Utf8FromWide(lines[21]), L';')[15]), output);

    const std::string screen = m_out.str(), name = "Totale dell'edificio";
    const std::size_t at = screen.find(name);
    ASSERT_NE(at, std::string::npos);
    std::istringstream values(screen.substr(at + name.size()));
    double shownDemand = 0.0, shownRequired = 0.0, shownStandard = 0.0, shownOutput = 0.0;
    values >> shownDemand >> shownRequired >> shownStandard >> shownOutput;
    EXPECT_EQ(shownDemand, demand);
    EXPECT_EQ(shownOutput, output);
}

TEST_F(BatchTest, ColderSystemNeedsLargerRadiators)
{
    const std::vector<CString> room = {L"--room", L"Camera di Nicolò"};
    ASSERT_EQ(Run(room), ExitCode::ok) << m_err.str();
    const CJsonAt own = ReadJson();
    ASSERT_EQ(Run({room[0], room[1], L"--system", L"55/45"}), ExitCode::ok) << m_err.str();
    const CJsonAt colder = ReadJson();

    const auto standardOutput = [](const CJsonAt& json) {
        const CJsonAt rooms = json["floors"][0]["rooms"];
        EXPECT_EQ(rooms.All().size(), 1u);
        const bool fits = rooms[0]["nearest"].All().empty();
        return rooms[0][fits ? "radiator" : "nearest"]["outputEN442"].Number();
    };
    // Factors 0.784 and 0.495: for the same room at least half as much again.
    EXPECT_GT(standardOutput(colder), 1.5 * standardOutput(own));
    EXPECT_EQ(colder["system"]["supply"].Number(), 55.0);
}

TEST_F(BatchTest, EachKindOfErrorHasItsOwnCodeAndMessage)
{
    m_folder.WriteBytes("bad.json", "{\n}}");
    m_folder.WriteBytes("file", "");
    const std::tuple<std::vector<CString>, ExitCode, CString> cases[] = {
        {{L"--building", L""}, ExitCode::wrongArguments, L"--building"},
        {{L"--room", L"Cantina"}, ExitCode::wrongArguments, L"\"Cantina\""},
        {{L"--system", L"40/22"}, ExitCode::wrongArguments, L"\"Bagno degli ospiti\""},
        {{L"--catalogues", m_folder.Path("none")}, ExitCode::wrongArguments, L"none"},
        {{L"--valve-catalogues", m_folder.Path("nope")}, ExitCode::wrongArguments, L"nope"},
        {{L"--building", m_folder.Path("none.json")}, ExitCode::badBuilding, L"none.json"},
        {{L"--building", m_folder.Path()}, ExitCode::badBuilding, m_folder.Path()},
        {{L"--building", m_folder.Path("bad.json")}, ExitCode::badBuilding, L"bad.json: riga 2"},
        {{L"--output", m_folder.Path("file")}, ExitCode::outputNotWritable, L"file"},
    };
    for (const auto& [arguments, code, told] : cases) {
        EXPECT_EQ(Run(arguments), code) << testing::PrintToString(arguments);
        EXPECT_NE(WideFromUtf8(m_err.str()).find(told), CString::npos) << m_err.str();
    }
    EXPECT_FALSE(m_folder.Exists("out"));
    EXPECT_NE(m_out.str().find("Totale dell'edificio"), std::string::npos)
        << "a schedule that cannot be written is still shown";
}

TEST_F(BatchTest, DamagedCatalogueLeavesTheOtherRoomsTheirs)
{
    for (const wchar_t* maker : {L"Valmorena", L"Thörlinger", L"Lindenbrück"}) {
        const CString name = CString(maker) + L"/hk.tga";
        m_folder.WriteBytes("listini/" + Utf8FromWide(name),
                            ReadWholeFile(kData + L"/catalogues/" + name).value_or(""));
    }
    m_folder.WriteBytes("listini/Altovico/hk.tga", "010;2010-05;Altovico;2026-01\n110;1;orfano\n");

    EXPECT_EQ(Run({L"--catalogues", m_folder.Path("listini")}), ExitCode::badCatalogue);
    const CString told = m_folder.Path("listini/Altovico/hk.tga") + L": riga 2: ";
    EXPECT_NE(WideFromUtf8(m_out.str()).find(told), CString::npos);
    const CString faults = WideFromUtf8(m_err.str());
    ASSERT_NE(faults.find(told), CString::npos);
    EXPECT_EQ(faults.find(told), faults.rfind(told)) << "one fault is told once, not a room";
    EXPECT_EQ(ReadJson()["totals"]["chosen"].Number(), 12); // three of the fifteen are Altovico's
}

TEST_F(BatchTest, AFolderThatCannotBeReadIsNoMissingMaker)
{
    ASSERT_EQ(Run({L"--save", m_folder.Path("casa.json")}), ExitCode::ok);
    std::filesystem::create_directory(m_folder.Root() / "listini");
    for (const wchar_t* maker : {L"Valmorena", L"Thörlinger", L"Lindenbrück", L"Altovico"}) {
        const std::string name = Utf8FromWide(maker);
        std::filesystem::create_directory_symlink(name, m_folder.Root() / "listini" / name);
    }
    const CString told = m_folder.Path("listini/Altovico/hk.tga") + L": non si può leggere: ";
    for (const CString& building : {kSampleBuilding, m_folder.Path("casa.json")}) {
        EXPECT_EQ(Run({L"--building", building, L"--catalogues", m_folder.Path("listini")}),
                  ExitCode::badCatalogue);
        EXPECT_NE(WideFromUtf8(m_out.str()).find(told), CString::npos);
        EXPECT_EQ(m_out.str().find("i cataloghi non hanno"), std::string::npos);
    }
    EXPECT_EQ(ReadJson()["totals"]["chosen"].Number(), 15) << "what stood there stays";

    std::filesystem::create_directory_symlink("anello", m_folder.Root() / "anello");
    EXPECT_EQ(Run({L"--catalogues", m_folder.Path("anello")}), ExitCode::wrongArguments);
    EXPECT_NE(WideFromUtf8(m_err.str()).find(L"cataloghi non si può leggere: "), CString::npos);
}

TEST_F(BatchTest, DamagedValveFileLeavesTheOtherRoomsTheirs)
{
    // A maker of its own: the module remembers valves of the sample makers.
    const auto find = [](const std::string& text, const CString& part) {
        return WideFromUtf8(text).find(part) != CString::npos;
    };
    m_folder.WriteBytes("valvole/Guasta/ha.tga", "010;1;Guasta;1\n100;1;Valvole\n110;1\n");
    std::filesystem::copy(RADSEL_DATA_DIR "/valves", m_folder.Root() / "valvole",
                          std::filesystem::copy_options::recursive);
    std::string building = ReadWholeFile(kSampleBuilding).value_or("");
    const std::string key = "\"maker\": \"Ostervliet\", \"number\"";
    for (std::size_t at = 0; (at = building.find(key)) != std::string::npos;) {
        building.replace(at, key.size(), "\"maker\": \"Guasta\", \"number\"");
    }
    m_folder.WriteBytes("casa.json", building);

    EXPECT_EQ(Run({L"--building", m_folder.Path("casa.json"), L"--valve-catalogues",
                   m_folder.Path("valvole"), L"--valves"}),
              ExitCode::badCatalogue);
    EXPECT_TRUE(find(m_out.str(), m_folder.Path("valvole/Guasta/ha.tga") +
                                      L": riga 3: al record 110 manca il campo 2"));
    EXPECT_TRUE(find(m_out.str(), L"Valvole: 22; mancanti: 5."));
    EXPECT_TRUE(find(m_out.str(), L"Preregolazione  xp K  kv bypass m³/h  kv corpo m³/h  quota %"));
    for (const CString& line : Split(m_out.str(), L'\n')) {
        if (line.starts_with(L"    mandata: ") && !line.ends_with(L"manca il campo 2")) {
            EXPECT_LE(GetDisplayWidth(line), 156) << Utf8FromWide(line);
        }
    }
}

TEST_F(BatchTest, ScreenThatCannotBeWrittenIsAnError)
{
    m_out.setstate(std::ios::badbit);
    EXPECT_EQ(Run({}), ExitCode::outputNotWritable);
    EXPECT_TRUE(m_folder.Exists("out/corpi-scaldanti.csv"));
}

} // namespace workbench
