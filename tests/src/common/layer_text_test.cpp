#include "common/layer_text.h"

#include <gtest/gtest.h>

TEST(LayerText, EveryFloorMarkIsReplacedAndTrailingBarsAreCut)
{
    const struct
    {
        const wchar_t *vorlage, *geschoss, *ersetzt, *layer;
    } cases[] = {
        {L"HEIZ_$d", L"EG", L"HEIZ_EG", L"HEIZ_EG"},
        {L"HEIZ_$d", L"", L"HEIZ_", L"HEIZ"},
        {L"$d$d_$D$", L"1", L"11_$D$", L"11_$D$"},
        {L"$d_x", L"a$d", L"a$d_x", L"a$d_x"},
        {L"HEIZ__", L"EG", L"HEIZ__", L"HEIZ"},
        {L"$d_", L"_", L"__", L""},
        {L"", L"EG", L"", L""},
    };
    for (const auto& c : cases) {
        CString text = c.vorlage;
        ReplaceFloorMark(text, c.geschoss);
        EXPECT_EQ(text, c.ersetzt);
        EXPECT_EQ(LayerAusVorlage(c.vorlage, c.geschoss), c.layer);
    }
}
