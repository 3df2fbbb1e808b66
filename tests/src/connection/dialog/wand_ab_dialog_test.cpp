// The dialog for the distances from wall and floor, as a user sees it.

#include "connection/dialog/wand_ab_dlg.h"
#include "host/host_prefs.h"

#include "tests/dialog_support/dialog_test.h"

using namespace reference_host;

namespace {

constexpr int kDistancesDialog = 18006;
constexpr int kWand = 1529;
constexpr int kBoden = 1530;
constexpr int kEinheitWand = 7020;
constexpr int kEinheitBoden = 7023;

class WandAb : public CDialogTest
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

    /// What is stored; a missing record fails the test.
    static VDI6030START Stored()
    {
        const VDI6030START* const record = ReadDefFile_VDI6030START(false);
        EXPECT_NE(record, nullptr);
        return record != nullptr ? *record : VDI6030START();
    }

    int Run(const CDialogDriver::Script& script)
    {
        m_driver.WhenOpens(kDistancesDialog, script);
        return CWandAbDlg().DoModal();
    }

    CSettingOverride m_records{kSettingDefFolder, m_folder.Path("records")};
};

TEST_F(WandAb, ShowsTheStoredDistancesInTheUnitThatTheUserHasNow)
{
    Store(0.15, 1.2);
    const CSettingOverride unit(kSettingUserUnit, L"1000");
    Run([](CDialogUser& user) {
        EXPECT_EQ(user.Texts({kWand, kBoden, kEinheitWand, kEinheitBoden}),
                  (std::vector<CString>{L"150.0", L"1200.0", L"mm", L"mm"}));
        EXPECT_EQ(user.Dialog().GetFocusId(), kWand);
        user.Click(kIdCancel);
    });
}

TEST_F(WandAb, OkTakesWhateverWasTypedAndKeepsTheRestOfTheRecord)
{
    struct Case
    {
        const wchar_t* setting;
        CString wand;
        CString boden;
        double storedWand;
        double storedBoden;
    };
    for (const Case& c :
         {Case{L"1000", L"200", L"1200.0", 0.2, 1.2}, Case{L"1", L"", L"0,25", 0.0, 0.25},
          Case{L"1", L"-0.1", L"vicino", -0.1, 0.0}}) {
        const CSettingOverride unit(kSettingUserUnit, c.setting);
        Store(0.15, 1.2);
        EXPECT_EQ(Run([&](CDialogUser& user) {
                      user.Type(kWand, c.wand);
                      user.Type(kBoden, c.boden);
                      user.Press(Qt::Key_Return);
                  }),
                  kIdOk);
        EXPECT_DOUBLE_EQ(Stored().AbstandWand, c.storedWand);
        EXPECT_DOUBLE_EQ(Stored().AbstandBoden, c.storedBoden);
        EXPECT_EQ(Stored().SystemName, L"Piani alti");
        EXPECT_EQ(Stored().SystemVorlauf, 55);
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
    EXPECT_DOUBLE_EQ(Stored().AbstandBoden, 0.1);
    EXPECT_EQ(Stored().AbstandWand, 0.0);
    EXPECT_TRUE(Stored().SystemName.empty());
}

} // namespace
