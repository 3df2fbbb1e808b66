#include "dialogs/hilfe_schalter.h"

#include "dialogs/brushed_dialog.h"
#include "tests/dialog_support/dialog_test.h"
#include "uikit/native/access.h"
#include "uikit/native/caption_bar.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPainter>
#include <QTest>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace reference_host;

namespace {

constexpr int kPatience = 30000; // ms, for a machine that is busy with other things

const std::vector<ControlTemplate> kControls = {{10, ControlKind::edit, L"", 4, 4, 60, 13}};
const DialogTemplate kPlain = {7301, L"Aiuto", 240, 60, frameFixed, kControls};
const DialogTemplate kBoxes = {
    7302, L"Aiuto", 240, 60, frameResizable | frameMinimizeBox | frameMaximizeBox, kControls};

/// A working place with pages for two dialogs, and an opener that tells through a pipe which page
/// it was given.
class Hilfe : public CDialogTest
{
protected:
    Hilfe()
    {
        const std::string pipe = (m_folder.Root() / "pipe").string();
        m_folder.WriteBytes("opener", "#!/bin/sh\nbasename \"$1\" > '" + pipe + "'\n");
        std::filesystem::permissions(m_folder.Root() / "opener", std::filesystem::perms::owner_all);
        mkfifo(pipe.c_str(), 0600);
        // Opened for both directions, so that the pipe never ends between two writers.
        m_pipe = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
        m_folder.WriteBytes("7301.pdf", "");
        m_folder.WriteBytes("7302.pdf", "");
    }
    ~Hilfe() override { close(m_pipe); }

    /// The next page that the opener was given, empty if it was not started.
    std::string WaitForPage() const
    {
        pollfd ready = {m_pipe, POLLIN, 0};
        char bytes[256];
        if (poll(&ready, 1, kPatience) != 1) {
            return {};
        }
        const ssize_t count = read(m_pipe, bytes, sizeof bytes);
        return std::string(bytes, count > 0 ? static_cast<std::size_t>(count) : 0);
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
    CSettingOverride m_program{kSettingHelpProgram, m_folder.Path("opener")};
    int m_pipe = -1;
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
        EXPECT_EQ(WaitForPage(), "7302.pdf\n") << "of this dialog alone";
        Painted(user);
        const CRect icon = dialog.GetHilfeRect();
        PressCaption(user, {icon.left - 1, icon.top + 8});
        PressCaption(user, {icon.left, icon.top + 8});
        EXPECT_EQ(WaitForPage(), "7302.pdf\n") << "once, for the press inside";
        dialog.MoveWindow(dialog.GetWindowRect().MovedBy(-60, 30));
        QCoreApplication::processEvents();
        PressCaption(user, {icon.right - 61, icon.top + 38});
        EXPECT_EQ(WaitForPage(), "7302.pdf\n") << "wherever the dialog was moved";
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
