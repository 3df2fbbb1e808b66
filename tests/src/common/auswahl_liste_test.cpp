#include "common/auswahl_liste.h"

#include "tests/support/test_liste.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace {

using Texts = std::vector<CString>;

TEST(SelectionList, SortingByNumberGivesAllTheDecimalsOfTheFirst)
{
    const std::tuple<Texts, bool, Texts> cases[] = {
        {{L"1000", L"600", L"300"}, true, {L"300", L"600", L"1000"}},
        {{L"300", L"1000", L"600", L"300"}, false, {L"1000", L"600", L"300", L"300"}},
        {{L"1.5", L"2"}, true, {L"1.5", L"2.0"}},
        {{L"2", L"1.5"}, true, {L"2", L"2"}},
        {{L"1,55", L"1,2"}, true, {L"1.00", L"1.00"}},
        {{L"1,25.5", L"3", L"3"}, false, {L"3.0", L"3.0", L"1.0"}},
        {{L"1.000,5", L"2"}, true, {L"1.00000", L"2.00000"}},
        {{L"1.0123456789ab", L"2"}, true, {L"1.012345678900", L"2.000000000000"}},
        {{L"abc", L"-1"}, true, {L"-1", L"0"}},
        {Texts(), true, Texts()},
    };
    for (const auto& [before, ascending, after] : cases) {
        CTestListe list(before);
        list.Waehlen(0);
        EXPECT_TRUE(SortComboNumeric(list, ascending));
        EXPECT_EQ(list.texte, after);
        EXPECT_EQ(list.gewaehlt, -1);
    }
}

TEST(SelectionList, SearchesGiveTheFirstFromTheTop)
{
    const CTestListe list(Texts{L"3000", L"300", L"Abc", L"abcd", L"30"});
    EXPECT_EQ(SucheAnfang(list, L"30"), 0);
    EXPECT_EQ(SucheAnfang(list, L"300"), 0);
    EXPECT_EQ(SucheAnfang(list, L"aBCD"), 3);
    EXPECT_EQ(SucheAnfang(list, L"abcde"), -1);
    EXPECT_EQ(SucheGleichen(list, L"30"), 4);
    EXPECT_EQ(SucheGleichen(list, L"abc"), -1);
}

} // namespace
