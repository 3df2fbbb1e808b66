// The dialog for the distances from wall and floor, as a user sees it.

#include "connection/wand_ab_dlg.h"
#include "host/host_prefs.h"

#include "dialog_support/dialog_driver.h"
#include "support/setting_override.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace {

constexpr int kDialog = 18006;
constexpr int kWand = 1529;
constexpr int kBoden = 1530;
constexpr int kEinheitWand = 7020;
constexpr int kEinheitBoden = 7023;

class WandAb : public testing::Test
{
protected:
    void Store(double wand, double boden)
    {
        VDI6030START start;
        start.AbstandWand = wand;
        start.AbstandBoden = boden;
        start.SystemName = L"Piani alti";
        start.SystemVorlauf = 55;
        ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
    }

    int Run(const CDialogDriver::Script& script)
    {
        m_driver.WhenOpens(kDialog, script);
        return CWandAbDlg().DoModal();
    }

    CTempFolder m_folder;
    CSettingOverride m_records{kSettingDefFolder, m_folder.Path("records")};
    CSettingOverride m_workplace{kSettingLocalPath, m_folder.Path()};
    CDialogDriver m_driver;
};

TEST_F(WandAb, ShowsTheStoredDistancesInTheUnitThatTheUserHasNow)
{
    struct Case
    {
        const wchar_t* setting;
        CString wand;
        CString boden;
        CString unit;
    };
    Store(0.15, 1.2);
    for (const Case& c :
         {Case{L"1", L"0.150", L"1.200", L"m"}, Case{L"1000", L"150.0", L"1200.0", L"mm"},
          Case{L"100", L"15.00", L"120.00", L"cm"}}) {
        const CSettingOverride unit(kSettingUserUnit, c.setting);
        Run([&](CDialogUser& user) {
            EXPECT_EQ(user.Text(kWand), c.wand);
            EXPECT_EQ(user.Text(kBoden), c.boden);
            EXPECT_EQ(user.Text(kEinheitWand), c.unit);
            EXPECT_EQ(user.Text(kEinheitBoden), c.unit);
            EXPECT_EQ(user.Dialog().GetFocusId(), kWand);
            user.Click(kIdCancel);
        });
    }
}

TEST_F(WandAb, OkStoresTheDistancesAndKeepsTheRestOfTheRecord)
{
    Store(0.15, 1.2);
    const CSettingOverride unit(kSettingUserUnit, L"1000");
    EXPECT_EQ(Run([](CDialogUser& user) {
                  user.Type(kWand, L"200");
                  user.Click(kIdOk);
              }),
              kIdOk);
    const VDI6030START* stored = ReadDefFile_VDI6030START(false);
    ASSERT_NE(stored, nullptr);
    EXPECT_DOUBLE_EQ(stored->AbstandWand, 0.2);
    EXPECT_DOUBLE_EQ(stored->AbstandBoden, 1.2);
    EXPECT_EQ(stored->SystemName, L"Piani alti");
    EXPECT_EQ(stored->SystemVorlauf, 55);
}

TEST_F(WandAb, OkTakesWhateverWasTyped)
{
    struct Case
    {
        CString wand;
        CString boden;
        double storedWand;
        double storedBoden;
    };
    const CSettingOverride unit(kSettingUserUnit, L"1");
    for (const Case& c : {Case{L"", L"0,25", 0.0, 0.25}, Case{L"-0.1", L"vicino", -0.1, 0.0}}) {
        Store(0.15, 1.2);
        Run([&](CDialogUser& user) {
            user.Type(kWand, c.wand);
            user.Type(kBoden, c.boden);
            user.Press(Qt::Key_Return);
        });
        const VDI6030START* stored = ReadDefFile_VDI6030START(false);
        ASSERT_NE(stored, nullptr);
        EXPECT_DOUBLE_EQ(stored->AbstandWand, c.storedWand);
        EXPECT_DOUBLE_EQ(stored->AbstandBoden, c.storedBoden);
    }
    EXPECT_TRUE(m_driver.Messages().empty());
}

TEST_F(WandAb, OkCreatesTheRecordAndCancelStoresNothing)
{
    const CSettingOverride unit(kSettingUserUnit, L"100");
    EXPECT_EQ(Run([](CDialogUser& user) {
                  EXPECT_EQ(user.Text(kWand), L"0.00");
                  user.Type(kBoden, L"10");
                  user.Click(kIdCancel);
              }),
              kIdCancel);
    EXPECT_EQ(ReadDefFile_VDI6030START(false), nullptr);

    Run([](CDialogUser& user) {
        user.Type(kBoden, L"10");
        user.Click(kIdOk);
    });
    const VDI6030START* stored = ReadDefFile_VDI6030START(false);
    ASSERT_NE(stored, nullptr);
    EXPECT_DOUBLE_EQ(stored->AbstandBoden, 0.1);
    EXPECT_EQ(stored->AbstandWand, 0.0);
    EXPECT_TRUE(stored->SystemName.empty());
}

} // namespace
