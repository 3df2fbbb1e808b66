#include "dialogs/hilfe_schalter.h"

#include "dialogs/brushed_dialog.h"
#include "tests/dialog_support/dialog_test.h"
#include "tests/support/page_opener.h"
#include "uikit/native/access.h"
#include "uikit/native/caption_bar.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTest>

#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace reference_host;

namespace {

const std::vector<ControlTemplate> kControls = {{10, ControlKind::edit, L"", 4, 4, 60, 13}};
const DialogTemplate kPlain = {7301, L"Aiuto", 240, 60, frameFixed, kControls};
const DialogTemplate kBoxes = {
    7302, L"Aiuto", 240, 60, frameResizable | frameMinimizeBox | frameMaximizeBox, kControls};

/// A working place with pages for two dialogs, and a program that opens them.
class Hilfe : public CDialogTest
{
protected:
    Hilfe()
    {
        m_folder.WriteBytes("7301.pdf", "");
        m_folder.WriteBytes("7302.pdf", "");
    }

    void ExpectPage(const char* name, const char* when) const
    {
        EXPECT_EQ(m_opener.WaitForPage(), "1|" + (m_folder.Root() / name).string()) << when;
    }

    static CCaptionBar& Caption(const CDialogUser& user)
    {
        return *CNativeAccess::Widget(user.Dialog())->findChild<CCaptionBar*>();
    }

    static QImage Painted(const CDialogUser& user) { return Caption(user).grab().toImage(); }

    /// Presses the left button on the caption bar at a place on the screen.
    static void PressCaption(const CDialogUser& user, CPoint screen)
    {
        CCaptionBar& bar = Caption(user);
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                          bar.mapFromGlobal(QPoint(screen.x, screen.y)));
    }

    CSettingOverride m_pages{kSettingHelpFolder, m_folder.Path()};
    CPageOpener m_opener{m_folder};
};

TEST_F(Hilfe, TheFirstLineOfADialogSwitchesItsHelp)
{
    bool allowed = true;
    EXPECT_FALSE(HilfeErlaubt(7301, allowed));
    EXPECT_TRUE(allowed) << "left alone without a file";

    const std::vector<std::pair<std::string, std::optional<bool>>> cases = {
        {"7301|1|\n", true},
        {"7301|0\n", false},
        {"1|0\n7301|1\n7301|0\n", true},
        {"7301\n7301|\n7301|-2|x|y\n", true},
        {"\n|\n 7301 Aiuto|1 (si)\n", true},
        {"7301|si\n", false},
        {"73010|1\nabc|1\n|1\n", {}},
        {"", {}},
    };
    for (const auto& [file, expected] : cases) {
        m_folder.WriteBytes("winsett.txt", file);
        allowed = !expected.value_or(false);
        EXPECT_EQ(HilfeErlaubt(7301, allowed), expected.has_value()) << file;
        EXPECT_EQ(allowed, expected.value_or(true)) << file;
    }
}

TEST_F(Hilfe, F1AndTheIconOpenThePageOfADialogThatHasAnEntry)
{
    m_folder.WriteBytes("winsett.txt", "7302|1|\n");
    CBrushedDialog plain(kPlain);
    m_driver.WhenOpens(7301, [&](CDialogUser& user) {
        EXPECT_FALSE(plain.GetHilfe());
        plain.SetHilfe(true);
        Painted(user);
        plain.SetHilfe(false);
        PressCaption(user, {plain.GetHilfeRect().left, plain.GetHilfeRect().top + 8});
        user.Press(Qt::Key_F1);
        user.Press(Qt::Key_Escape);
    });
    plain.DoModal();

    CBrushedDialog dialog(kBoxes);
    m_driver.WhenOpens(7302, [&](CDialogUser& user) {
        user.Focus(10);
        user.Press(Qt::Key_F1);
        ExpectPage("7302.pdf", "of this dialog alone");
        Painted(user);
        const CRect icon = dialog.GetHilfeRect();
        PressCaption(user, {icon.left - 1, icon.top + 8});
        PressCaption(user, {icon.left, icon.top + 8});
        ExpectPage("7302.pdf", "once, for the press inside");
        dialog.MoveWindow(dialog.GetWindowRect().MovedBy(-60, 30));
        QCoreApplication::processEvents();
        PressCaption(user, {icon.right - 61, icon.top + 38});
        ExpectPage("7302.pdf", "wherever the dialog was moved");
        user.Press(Qt::Key_Escape);
    });
    dialog.DoModal();
}

TEST_F(Hilfe, TheIconStandsBesideTheButtonsOfTheCaptionBar)
{
    for (const auto& [dialogTemplate, count] : {std::pair(&kPlain, 2), {&kBoxes, 4}}) {
        const int buttons = count;
        CBrushedDialog dialog(*dialogTemplate);
        m_driver.WhenOpens(dialogTemplate->id, [&](CDialogUser& user) {
            QImage without = Painted(user);
            dialog.SetHilfe(true);
            QImage with = Painted(user);
            EXPECT_NE(with, without);

            const CRect window = dialog.GetWindowRect();
            const int edge = window.Width() - buttons * GetCaptionButtonWidth();
            EXPECT_EQ(dialog.GetHilfeRect(),
                      (CRect{edge - 26, 0, edge, 40}.MovedBy(window.left, window.top)));
            for (QImage* picture : {&with, &without}) {
                QPainter(picture).fillRect(edge - 16, 4, 16, 16, Qt::black);
            }
            EXPECT_EQ(with, without) << "nothing changes around the icon";
            user.Press(Qt::Key_Escape);
        });
        dialog.DoModal();
    }
}

} // namespace
