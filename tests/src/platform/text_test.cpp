#include "platform/text.h"

#include <gtest/gtest.h>

namespace {

TEST(Text, LowerCaseCoversTheLettersOfCatalogues)
{
    EXPECT_EQ(ToLower(CString(L"ABCXYZ[@`{0")), L"abcxyz[@`{0");
    EXPECT_EQ(ToLower(CString(L"ÀÖØÞ×÷ßÿ")), L"àöøþ×÷ßÿ");
    EXPECT_EQ(ToLower(CString(L"ĀĶĹŇŊŶŸŹŽžĸŉſ")), L"āķĺňŋŷÿźžžĸŉſ");
    EXPECT_EQ(ToLower(CString(L"ΆΈΌΎΏΑΣΫ")), L"άέόύώασϋ");
    EXPECT_EQ(ToLower(CString(L"ЀЏАЯяё")), L"ѐџаяяё");
}

TEST(Text, ComparisonWithoutCaseLooksAtTheWholeText)
{
    EXPECT_TRUE(EqualNoCase(L"Heizkörper", L"HEIZKÖRPER"));
    EXPECT_FALSE(EqualNoCase(L"Heizkörper", L"Heizkörpe"));
    EXPECT_FALSE(EqualNoCase(L"ss", L"ß"));
}

} // namespace
