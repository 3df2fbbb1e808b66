#include "common/units.h"
#include "tests/support/setting_override.h"

#include <gtest/gtest.h>

using namespace reference_host;

namespace {

class Units : public ::testing::Test
{
protected:
    Units() { ResetUnits(); }
    ~Units() override { ResetUnits(); }
};

TEST_F(Units, LengthsAreShownAndReadInTheUsersUnitWhateverTheDrawingHas)
{
    const struct
    {
        const wchar_t *drawing, *user;
        CString unit;
        const wchar_t *oneAndAHalf, *typed;
        double meters;
    } cases[] = {
        {L"1000", L"1", L"m", L"1.500", L"1,25", 1.25},
        {L"1", L"100", L"cm", L"150.00", L"150", 1.5},
        {L"100", L"1000", L"mm", L"1500.0", L"12,5 mm", 0.0125},
        {L"10", L"1000", L"mm", L"1500.0", L"mm", 0.0},
        {L"", L"10", L"m", L"1.500", L"2", 2.0},
        {L"-100", L"-1", L"m", L"1.500", L"2", 2.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(CString(c.user)));
        const CSettingOverride drawingUnit(kSettingDrawingUnit, c.drawing);
        const CSettingOverride userUnit(kSettingUserUnit, c.user);
        ResetUnits();
        EXPECT_EQ(GetUnitText(false), c.unit);
        EXPECT_EQ(GetUnitText(true), L"[" + c.unit + L"]");
        EXPECT_EQ(MeterToText(1.5), c.oneAndAHalf);
        EXPECT_DOUBLE_EQ(TextToMeter(c.typed), c.meters);
    }
}

TEST_F(Units, AChangeInTheHostTakesEffectAtTheNextReset)
{
    const CSettingOverride before(kSettingUserUnit, L"100");
    ASSERT_EQ(GetUnitText(false), L"cm");

    OverrideHostSetting(kSettingUserUnit, L"1000");
    EXPECT_EQ(MeterToText(1.0), L"100.00");
    EXPECT_DOUBLE_EQ(TextToMeter(L"100"), 1.0);

    ResetUnits();
    EXPECT_EQ(MeterToText(1.0), L"1000.0");
}

} // namespace
