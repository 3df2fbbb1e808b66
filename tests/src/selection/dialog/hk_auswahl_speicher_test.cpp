// What the selection dialog keeps and where: placement, layer, heating systems, start values.

#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "tests/src/selection/dialog/auswahl_fixture.h"
#include "tests/support/file_size_limit.h"

using namespace reference_host;

namespace {

TEST_F(CAuswahlDialogTest, OkAloneKeepsPlacementAndFiles)
{
    const CSettingOverride winpos(kSettingWinposFile, L"fenster.txt");
    m_folder.WriteBytes("fenster.txt", "");
    CRect ort;
    int alpha = 0;
    for (const int schluss : {kIdCancel, kIdOk}) {
        EXPECT_EQ(m_folder.ReadBytes("fenster.txt"), "");
        Oeffne([&](CDialogUser& user) {
            const CRect vorher = user.Dialog().GetWindowRect();
            user.Dialog().MoveWindow({20, 10, 20 + vorher.Width() + 90, 10 + vorher.Height() + 90});
            ort = user.Dialog().GetWindowRect();
            EXPECT_EQ(ort.Width(), vorher.Width()) << "grows in height alone";
            EXPECT_EQ(ort.Height(), vorher.Height() + 90);
            user.ChooseOpacity(18109, {Qt::Key_PageUp, Qt::Key_Escape});
            EXPECT_EQ(user.Dialog().GetAlpha(), 255);
            user.ChooseOpacity(18109, {Qt::Key_PageUp, Qt::Key_Return});
            alpha = user.Dialog().GetAlpha();
            EXPECT_LT(alpha, 255);
            user.Click(schluss);
        });
        EXPECT_EQ(m_folder.Exists("HEIZUNG/CmbData.txt"), schluss == kIdOk);
        EXPECT_EQ(m_folder.Exists("HkAuswahl.def"), schluss == kIdOk);
    }
    Zeige([&](CDialogUser& user) {
        EXPECT_EQ(user.Dialog().GetWindowRect(), ort);
        EXPECT_EQ(user.Dialog().GetAlpha(), alpha);
    });
}

TEST_F(CAuswahlDialogTest, AnyTextMayStandInTheListOfSystems)
{
    m_folder.WriteBytes("HEIZUNG/CmbData.txt",
                        "[VDI6030_HS]\r\nsolo nome|70 gradi|Standard (75/65)|\r\n");
    Zeige([&](CDialogUser& user) {
        for (const auto& [eintrag, ruecklauf] :
             {std::pair(L"solo nome", 0.0), {L"70 gradi", 70.0}}) {
            user.Choose(7006, CString(eintrag));
            EXPECT_EQ(user.Text(7007) + L"/" + user.Text(7008), L"/0");
            EXPECT_EQ(m_uebergabe.Vorlauf, 0.0);
            EXPECT_EQ(m_uebergabe.Ruecklauf, ruecklauf);
        }
        user.Type(7007, L"Standard");
        user.Type(7008, L"75");
        user.Type(7009, L"65");
        user.Click(268);
        EXPECT_EQ(user.Items(7006).size(), 3U) << "the entry is there already";
        EXPECT_EQ(user.Chosen(7006), 2);
        EXPECT_EQ(m_uebergabe.Vorlauf, 75.0);
    });
}

TEST_F(CAuswahlDialogTest, ValvesEditTheStartValuesOfConnectionAndValves)
{
    const CSettingOverride unit(kSettingUserUnit, L"1");
    const CSettingOverride ventile(kSettingValveBlockFolder, L"blocchi");
    for (const bool gespeichert : {true, false}) {
        for (const int schluss : {kIdCancel, kIdOk}) {
            std::filesystem::remove(m_folder.Root() / "Vdi6030Start.def");
            if (gespeichert) {
                VDI6030START start;
                start.SystemName = L"Piani alti";
                start.Anschluss.WandAbstand = 0.25;
                start.VentilRuecklauf.DN = 20.0;
                ASSERT_TRUE(WriteDefFile_VDI6030START(&start, false));
            }
            m_pDrawer = schluss == kIdOk ? nullptr : &m_drawer;
            m_driver.WhenOpens(238, [&](CDialogUser& user) {
                EXPECT_EQ(user.Text(18105), gespeichert ? L"0.250" : L"");
                EXPECT_TRUE(Verbietet(user, {18076, 18077}));
                EXPECT_TRUE(user.IsChecked(18076) && user.IsChecked(18077));
                EXPECT_FALSE(user.IsChecked(18045));
                if (!gespeichert) {
                    user.Click(18106);
                }
                user.Type(18105, L"0.3");
                user.Click(schluss);
            });
            Zeige([](CDialogUser& user) { user.Click(7028); });
            const VDI6030START* start = ReadDefFile_VDI6030START(false);
            ASSERT_EQ(start != nullptr, gespeichert || schluss == kIdOk);
            if (start != nullptr) {
                EXPECT_EQ(start->Anschluss.WandAbstand, schluss == kIdOk ? 0.3 : 0.25);
                EXPECT_EQ(start->VentilRuecklauf.DN, gespeichert ? 20.0 : 15.0);
                EXPECT_EQ(start->SystemName, gespeichert ? L"Piani alti" : L"");
            }
        }
    }
}

TEST_F(CAuswahlDialogTest, WallDistancesAreStoredByTheirDialogAndReadByNobody)
{
    m_driver.WhenOpens(18006, [](CDialogUser& user) {
        user.Type(1529, L"0.2");
        user.Click(kIdOk);
    });
    Zeige([&](CDialogUser& user) {
        const auto rows = GitterZeilen(user);
        user.Click(7022);
        EXPECT_EQ(GitterZeilen(user), rows);
    });
    const VDI6030START* start = ReadDefFile_VDI6030START(false);
    ASSERT_NE(start, nullptr) << "Cancel takes nothing back";
    EXPECT_EQ(start->AbstandWand, 0.2);
}

TEST_F(CAuswahlDialogTest, StoresThatCannotBeReadOrWrittenAreNoObstacle)
{
    const CSettingOverride winpos(kSettingWinposFile, L"fenster.txt");
    using namespace std::string_literals;
    const std::string muell = "\xFF\xFE|[VDI\0\x01*|*|(/\n\xD8\x00"s;
    for (const bool ordner : {false, true}) {
        for (const char* name :
             {"HEIZUNG/CmbData.txt", "HkAuswahl.def", "Vdi6030Start.def", "fenster.txt"}) {
            std::filesystem::remove_all(m_folder.Root() / name);
            if (ordner) {
                std::filesystem::create_directories(m_folder.Root() / name / "voll");
            } else {
                m_folder.WriteBytes(name, muell);
            }
        }
        m_layer.clear();
        m_driver.WhenOpens(18006, [](CDialogUser& user) {
            EXPECT_EQ(user.Text(1529), L"0.000");
            user.Click(kIdOk);
        });
        ExpectResult(0, [&](CDialogUser& user) {
            EXPECT_EQ(user.Items(7006).size(), ordner ? 0U : 1U);
            user.Click(7022);
            EXPECT_EQ(ReadDefFile_VDI6030START(false) == nullptr, ordner);
            user.Click(kIdOk);
        });
    }
    EXPECT_TRUE(m_driver.Messages().empty());
}

TEST_F(CAuswahlDialogTest, WithFilesThatCannotBeWrittenOkEndsAndLeavesThem)
{
    const char* const kDateien[] = {"HEIZUNG/CmbData.txt", "HkAuswahl.def", "Vdi6030Start.def"};
    Oeffne([](CDialogUser& user) { user.Click(kIdOk); });
    const auto inhalt = [&] {
        std::vector<std::string> bytes;
        for (const char* name : kDateien) {
            bytes.push_back(m_folder.ReadBytes(name));
        }
        return bytes;
    };
    const auto vorher = inhalt();
    for (const bool voll : {true, false}) {
        ExpectResult(0, [&](CDialogUser& user) {
            user.Choose(7006, 0);
            user.Type(7007, L"Pompa");
            user.Click(268);
            user.Click(3144);
            user.Choose(3187, L"MURI");
            std::optional<CFileSizeLimit> limit;
            if (voll) {
                limit.emplace(0);
            } else {
                for (const char* name : kDateien) {
                    std::filesystem::permissions(m_folder.Root() / name,
                                                 std::filesystem::perms::owner_read);
                }
            }
            user.Click(kIdOk);
        });
        EXPECT_EQ(inhalt(), vorher) << (voll ? "full disk" : "read-only");
    }
    EXPECT_TRUE(m_driver.Messages().empty());
}

} // namespace
