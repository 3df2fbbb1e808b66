#include "workbench/program/arguments.h"

#include "tests/src/platform/thrown.h"

#include <gtest/gtest.h>

#include <tuple>

namespace workbench {

TEST(Arguments, EveryOptionIsRead)
{
    const CArguments arguments =
        ParseArguments({L"--batch", L"--building", L"casa.json", L"--catalogues=listini",
                        L"--system", L"55,5/45", L"--room", L"Città = bagno", L"--output",
                        L"risultati", L"--valves", L"--valve-catalogues", L"valvole"});
    EXPECT_EQ(arguments.strBuilding, L"casa.json");
    EXPECT_EQ(arguments.strCatalogues, L"listini");
    EXPECT_EQ(arguments.strValveCatalogues, L"valvole");
    EXPECT_TRUE(arguments.bValves);
    EXPECT_EQ(arguments.strRoom, L"Città = bagno");
    EXPECT_EQ(arguments.strOutput, L"risultati");
    ASSERT_TRUE(arguments.system);
    EXPECT_EQ(arguments.system->vorlauf, 55.5);
    EXPECT_EQ(arguments.system->ruecklauf, 45.0);
    EXPECT_FALSE(arguments.bHelp);
}

TEST(Arguments, LastOfTwoEqualOptionsCounts)
{
    EXPECT_EQ(ParseArguments({L"--building", L"a.json", L"--building", L"b.json"}).strBuilding,
              L"b.json");
}

TEST(Arguments, HelpNeedsNoBuilding)
{
    EXPECT_TRUE(ParseArguments({L"--help"}).bHelp);
}

TEST(Arguments, TheValveDialogTakesUpToTwoTexts)
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
        const CArguments result = ParseArguments(arguments);
        EXPECT_TRUE(result.bValveDialog) << "and needs no building";
        EXPECT_EQ(result.strMaker, maker);
        EXPECT_EQ(result.strValveNumber, number);
        EXPECT_EQ(result.strWorkplace, behind.empty() ? L"" : L"posto");
    }
}

TEST(Arguments, ErrorsNameTheArgument)
{
    const std::pair<std::vector<CString>, CString> cases[] = {
        {{}, L"--building"},
        {{L"--building"}, L"--building"},
        {{L"--valve-dialog", L"a", L"b", L"troppo"}, L"troppo"},
        {{L"--building="}, L"--building"},
        {{L"--building", L"a.json", L"--rooms", L"Bagno"}, L"--rooms"},
        {{L"--building", L"a.json", L"altro.json"}, L"altro.json"},
        {{L"--building", L"a.json", L"--help=si"}, L"--help=si"},
        {{L"--building", L"a.json", L"--valves=si"}, L"--valves=si"},
        {{L"--building", L"a.json", L"--valve-catalogues"}, L"--valve-catalogues"},
        {{L"--building", L"a.json", L"--system", L"45/55"}, L"45/55"},
    };
    for (const auto& [arguments, named] : cases) {
        const CString error =
            MessageOf<CArgumentException>([&given = arguments] { ParseArguments(given); });
        EXPECT_NE(error.find(named), CString::npos) << testing::PrintToString(error);
    }
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

} // namespace workbench
