#include "workbench/batch/command_line.h"

#include "common/text_file.h"
#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "workbench/building/building_json.h"
#include "workbench/dxf/dxf_blocks.h"
#include "workbench/program/workbench_program.h"
#include "workbench/schedule/text_columns.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <tuple>

using namespace reference_host;

namespace workbench {

namespace {

const CString kData = WideFromUtf8(RADSEL_DATA_DIR);
const CString kSampleBuilding = kData + L"/buildings/villa-dei-tigli.json";

/// The lines of an output, or the fields of a line.
CStringArray Split(const std::string& text, wchar_t separator)
{
    CStringArray parts;
    SplitString(parts, WideFromUtf8(text), separator);
    return parts;
}

class BatchTest : public testing::Test
{
protected:
    ~BatchTest() override
    {
        ClearHostSettingOverride(kSettingHKDir);
        ClearHostSettingOverride(kSettingVEDir);
    }

    /// Runs over the sample data; `more` arguments win over these.
    ExitCode Run(const std::vector<CString>& more)
    {
        std::vector<CString> arguments = {
            L"--building",         kSampleBuilding,    L"--catalogues", kData + L"/catalogues",
            L"--valve-catalogues", kData + L"/valves", L"--output",     m_folder.Path("out")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        m_out.str({});
        m_err.str({});
        return RunCommandLine(GetWorkbench(), arguments, false, m_out, m_err);
    }

    QJsonValue ReadJson() const
    {
        const std::string bytes = m_folder.ReadBytes("out/corpi-scaldanti.json");
        return QJsonDocument::fromJson(QByteArray::fromStdString(bytes)).object();
    }

    CTempFolder m_folder;
    std::ostringstream m_out;
    std::ostringstream m_err;
};

} // namespace

TEST_F(BatchTest, SampleBuildingGivesFilesThatAgreeWithTheScreen)
{
    ASSERT_EQ(Run({}), ExitCode::ok) << m_err.str();
    EXPECT_EQ(m_err.str(), "");

    int rooms = 0;
    int unfitting = 0;
    int valves = 0;
    double output = 0.0;
    double demand = 0.0;
    const QJsonValue json = ReadJson();
    for (const QJsonValue floor : json["floors"].toArray()) {
        for (const QJsonValue room : floor["rooms"].toArray()) {
            ++rooms;
            unfitting += room["status"] == "unfitting" ? 1 : 0;
            demand += room["demand"].toDouble();
            const QJsonValue radiator = room["radiator"];
            output += radiator["output"].toDouble();
            for (const QJsonValue valve : room["valves"].toObject()) {
                valves += valve["status"] == "found" ? 1 : 0;
            }
            if (room["status"] == "chosen") {
                const double required = room["demand"].toDouble() - room["covered"].toDouble();
                EXPECT_GE(radiator["output"].toDouble(), 0.9 * required);
                EXPECT_LE(radiator["height"].toDouble(), room["heightMax"].toDouble());
                EXPECT_LE(radiator["length"].toDouble(), room["lengthMax"].toDouble());
            }
        }
    }
    EXPECT_EQ(rooms, 18);
    EXPECT_EQ(unfitting, 2);
    EXPECT_EQ(json["totals"]["output"].toDouble(), output);
    int ordered = 0;
    for (const QJsonValue item : json["valves"].toArray()) {
        ordered += item["count"].toInt();
    }
    // Fifteen radiators with two valves each, less two with a built-in valve, one with a single
    // pipe and one whose supply valve no file knows.
    EXPECT_EQ(valves, 26);
    EXPECT_EQ(ordered, valves);
    EXPECT_EQ(json["totals"]["demand"].toDouble(), demand);

    const CStringArray lines = Split(m_folder.ReadBytes("out/corpi-scaldanti.csv"), L'\n');
    ASSERT_EQ(lines.GetSize(), 1 + 18 + 2 + 1);
    EXPECT_EQ(std::stod(Split(Utf8FromWide(lines[21]), L';')[15]), output);

    const std::string screen = m_out.str();
    const std::size_t totalLine = screen.find("Totale dell'edificio");
    ASSERT_NE(totalLine, std::string::npos);
    std::istringstream values(
        screen.substr(totalLine + std::string("Totale dell'edificio").size()));
    double shownDemand = 0.0, shownRequired = 0.0, shownStandard = 0.0, shownOutput = 0.0;
    values >> shownDemand >> shownRequired >> shownStandard >> shownOutput;
    EXPECT_EQ(shownDemand, demand);
    EXPECT_EQ(shownOutput, output);
}

TEST_F(BatchTest, ColderSystemNeedsLargerRadiators)
{
    const std::vector<CString> room = {L"--room", L"Camera di Nicolò"};
    ASSERT_EQ(Run(room), ExitCode::ok) << m_err.str();
    const QJsonValue own = ReadJson();
    ASSERT_EQ(Run({room[0], room[1], L"--system", L"55/45"}), ExitCode::ok) << m_err.str();
    const QJsonValue colder = ReadJson();

    const auto standardOutput = [](const QJsonValue& json) {
        const QJsonArray rooms = json["floors"][0]["rooms"].toArray();
        EXPECT_EQ(rooms.size(), 1);
        const QJsonValue chosen = rooms[0]["radiator"];
        return (chosen.isObject() ? chosen : rooms[0]["nearest"])["outputEN442"].toDouble();
    };
    // Factors 0.784 and 0.495: for the same room at least half as much again.
    EXPECT_GT(standardOutput(colder), 1.5 * standardOutput(own));
    EXPECT_EQ(colder["system"]["supply"].toDouble(), 55.0);
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
        const std::string name = "listini/" + Utf8FromWide(maker) + "/hk.tga";
        std::filesystem::create_directories((m_folder.Root() / name).parent_path());
        std::filesystem::copy_file(Utf8FromWide(kData + L"/catalogues/" + maker + L"/hk.tga"),
                                   m_folder.Root() / name);
    }
    m_folder.WriteBytes("listini/Altovico/hk.tga", "010;2010-05;Altovico;2026-01\n110;1;orfano\n");

    EXPECT_EQ(Run({L"--catalogues", m_folder.Path("listini")}), ExitCode::badCatalogue);
    const CString told = m_folder.Path("listini/Altovico/hk.tga") + L": riga 2: ";
    EXPECT_NE(WideFromUtf8(m_out.str()).find(told), CString::npos);
    const CString faults = WideFromUtf8(m_err.str());
    ASSERT_NE(faults.find(told), CString::npos);
    EXPECT_EQ(faults.find(told), faults.rfind(told)) << "one fault is told once, not a room";
    EXPECT_EQ(ReadJson()["totals"]["chosen"].toInt(), 12); // three of the fifteen are Altovico's
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
    EXPECT_EQ(ReadJson()["totals"]["chosen"].toInt(), 15) << "what stood there stays";

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
    std::ifstream sample(RADSEL_DATA_DIR "/buildings/villa-dei-tigli.json");
    std::string building(std::istreambuf_iterator<char>(sample), {});
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

TEST_F(BatchTest, ThePlanIsDrawnAndTheBuildingKeptWithItsRadiators)
{
    ASSERT_EQ(Run({L"--save", m_folder.Path("casa.json")}), ExitCode::ok) << m_err.str();
    EXPECT_EQ(m_folder.ReadBytes("out/progetto.pdf").substr(0, 5), "%PDF-");
    const auto plan = ReadDxfFile(m_folder.Path("out/pianta.dxf"));
    EXPECT_TRUE(std::holds_alternative<CDxfDrawing>(plan));
    const CBuilding kept = ReadBuilding(m_folder.Path("casa.json"));
    ASSERT_EQ(kept.floors[0].rooms[1]->heizkoerper.size(), 1u);

    // The schedule of the kept building tells the radiators that stand in it.
    const QJsonValue chosen = ReadJson()["floors"][0]["rooms"][1]["radiator"];
    ASSERT_EQ(Run({L"--building", m_folder.Path("casa.json")}), ExitCode::ok) << m_err.str();
    EXPECT_EQ(ReadJson()["floors"][0]["rooms"][1]["radiator"], chosen);
}

TEST_F(BatchTest, BlocksThatCannotBeReadAreToldAndTheRestIsDone)
{
    m_folder.WriteBytes("rotto.dxf", "0\nSECTION\nrotto\n");
    const CSettingOverride blocks(kSettingHKBlockFolder, m_folder.Path("rotto.dxf"));
    EXPECT_EQ(Run({}), ExitCode::badCatalogue);
    EXPECT_NE(m_err.str().find("rotto.dxf: riga 3: "), std::string::npos) << m_err.str();
    EXPECT_NE(m_out.str().find("pianta.dxf"), std::string::npos);
}

} // namespace workbench
