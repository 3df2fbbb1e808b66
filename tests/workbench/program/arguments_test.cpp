#include "workbench/program/arguments.h"

#include <gtest/gtest.h>

namespace workbench {

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
