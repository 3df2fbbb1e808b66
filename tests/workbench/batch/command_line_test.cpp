#include "workbench/batch/command_line.h"

#include "tests/src/platform/thrown.h"
#include "workbench/batch/batch_program.h"
#include "workbench/batch/help_run.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <tuple>

namespace workbench {

namespace {

/// Knows every option, since it has a window; none of its commands is run.
constexpr CCommandRun kWindow[] = {{CommandId::window, nullptr}};
constexpr CProgram kWithWindows{L"prova", kWindow};

CArguments Parse(const std::vector<CString>& arguments)
{
    return ParseCommandLine(kWithWindows, arguments, false).arguments;
}

CommandId CommandOf(const std::vector<CString>& arguments, bool hasScreen)
{
    return ParseCommandLine(kWithWindows, arguments, hasScreen).command.id;
}

/// The names in the column of the help text in which commands and options are told.
std::multiset<CString> NamesInHelp()
{
    std::multiset<CString> names;
    std::wistringstream lines(GetHelpText(true));
    for (CString line; std::getline(lines, line);) {
        if (line.starts_with(L"  --")) {
            names.insert(line.substr(2, line.find(L' ', 2) - 2));
        }
    }
    return names;
}

TEST(CommandLine, EveryOptionIsRead)
{
    const CArguments arguments = Parse(
        {L"--batch", L"--building", L"casa.json", L"--catalogues=listini", L"--system", L"55,5/45",
         L"--room", L"Città = bagno", L"--output", L"risultati", L"--valves", L"--valve-catalogues",
         L"valvole", L"--csv-plain", L"--building=--altra.json", L"--sample", L"esempio.json"});
    EXPECT_EQ(arguments.strBuilding, L"--altra.json") << "the last of two counts";
    EXPECT_EQ(arguments.strSample, L"esempio.json");
    EXPECT_EQ(arguments.strCatalogues, L"listini");
    EXPECT_EQ(arguments.strValveCatalogues, L"valvole");
    EXPECT_TRUE(arguments.bValves);
    EXPECT_TRUE(arguments.bCsvPlain);
    EXPECT_EQ(arguments.strRoom, L"Città = bagno");
    EXPECT_EQ(arguments.strOutput, L"risultati");
    ASSERT_TRUE(arguments.system);
    EXPECT_EQ(arguments.system->vorlauf, 55.5);
    EXPECT_EQ(arguments.system->ruecklauf, 45.0);
}

TEST(HeatingSystem, OnlyWholePairsOfPlausibleTemperaturesAreTaken)
{
    for (const wchar_t* good : {L"75/65", L"45.5/35", L"110/0,5"}) {
        EXPECT_TRUE(ParseHeatingSystem(good)) << testing::PrintToString(CString(good));
    }
    for (const wchar_t* bad :
         {L"", L"75", L"/", L"75/", L"/65", L"75/65/20", L"75 /65", L"-75/-80", L"75./65", L".5/.4",
          L"7e1/65", L"inf/65", L"65/65", L"111/65", L"75/0", L"75°/65°"}) {
        EXPECT_FALSE(ParseHeatingSystem(bad)) << testing::PrintToString(CString(bad));
    }
}

TEST(CommandLine, WithoutACommandTheScreenDecides)
{
    EXPECT_EQ(CommandOf({}, true), CommandId::window);
    EXPECT_EQ(CommandOf({}, false), CommandId::batch);
    EXPECT_EQ(CommandOf({L"--batch"}, true), CommandId::batch);
    EXPECT_EQ(CommandOf({L"--building", L"a", L"--tree-dialog"}, true), CommandId::treeDialog);
    EXPECT_EQ(CommandOf({L"--tree-dialog", L"--batch", L"--help", L"--valves"}, true),
              CommandId::help)
        << "goes before any other";
}

TEST(CommandLine, TextsBehindACommandAreItsOwn)
{
    const std::tuple<std::vector<CString>, CString, CString> cases[] = {
        {{}, L"", L""},
        {{L"--workplace", L"posto"}, L"", L""},
        {{L"Rossi", L"--workplace", L"posto"}, L"Rossi", L""},
        {{L"Rossi", L"0123", L"--workplace=posto"}, L"Rossi", L"0123"},
    };
    for (const auto& [behind, maker, number] : cases) {
        std::vector<CString> arguments = {L"--valve-dialog"};
        arguments.insert(arguments.end(), behind.begin(), behind.end());
        const CArguments result = Parse(arguments);
        EXPECT_EQ(result.strMaker, maker);
        EXPECT_EQ(result.strValveNumber, number);
        EXPECT_EQ(result.strWorkplace, behind.empty() ? L"" : L"posto");
    }
    EXPECT_EQ(Parse({L"--radiator-dialog", L"Bagno", L"--system", L"75/65"}).strRoom, L"Bagno");
    EXPECT_EQ(Parse({L"--list-connections", L"Vent.txt"}).strConnectionList, L"Vent.txt");
}

TEST(CommandLine, ErrorsNameTheArgumentAndTheCommand)
{
    const std::tuple<std::vector<CString>, CString, CString> cases[] = {
        {{L"--building"}, L"--building", L""},
        {{L"--building="}, L"--building", L""},
        {{L"--building", L"--help"}, L"--building", L"richiede un valore"},
        {{L"--rooms", L"Bagno"}, L"--rooms", L"--batch"},
        {{L"altro.json"}, L"altro.json", L"--batch"},
        {{L"--help=si"}, L"--help=si", L"--batch"},
        {{L"--batch", L"--valves=si"}, L"--valves=si", L"--batch"},
        {{L"--system", L"45/55"}, L"45/55", L""},
        {{L"--valve-dialog", L"a", L"b", L"troppo"}, L"troppo", L"--valve-dialog"},
        {{L"--nonsense", L"--connection-dialog"}, L"--nonsense", L"--connection-dialog"},
        {{L"--valves", L"--tree-dialog"}, L"--valves", L"--tree-dialog"},
        {{L"--tree-dialog", L"--valve-dialog"}, L"--tree-dialog", L"--valve-dialog"},
    };
    for (const auto& [arguments, argument, command] : cases) {
        const CString error = MessageOf<CArgumentException>([&given = arguments] { Parse(given); });
        EXPECT_NE(error.find(argument), CString::npos) << testing::PrintToString(error);
        EXPECT_NE(error.find(command), CString::npos) << testing::PrintToString(error);
    }
    EXPECT_NE(MessageOf<CArgumentException>([] {
                  ParseCommandLine(kWithWindows, {L"--valves"}, true);
              }).find(L"la finestra (senza --batch) non ammette l'opzione --valves"),
              CString::npos);
}

TEST(CommandLine, ARunWithoutItsBuildingIsRefused)
{
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(RunCommandLine(GetBatchProgram(), {L"--valves"}, false, out, err),
              ExitCode::wrongArguments);
    EXPECT_NE(err.str().find("--building FILE"), std::string::npos) << err.str();
}

TEST(CommandLine, HelpTellsEveryCommandAndOptionOnce)
{
    std::set<CString> names = {L"--superuser"}; // stands in the line of its command
    for (const CCommand& command : GetCommands()) {
        if (command.name) {
            names.insert(command.name);
        }
        for (const COption* option : command.options) {
            names.insert(option->name);
        }
    }
    std::multiset<CString> told = NamesInHelp();
    told.insert(L"--superuser");
    EXPECT_EQ(told, std::multiset<CString>(names.begin(), names.end()));
}

} // namespace

} // namespace workbench
