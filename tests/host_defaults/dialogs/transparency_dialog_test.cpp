#include "host/host_prompts.h"
#include "tests/host_defaults/host_dialog_driver.h"

#include <gtest/gtest.h>

#include <QDialog>

#include <functional>
#include <utility>

namespace {

/// Runs the choice above a modal dialog, as a module does; hands over that dialog with it.
void AboveADialog(const std::function<void(QWidget& below)>& run)
{
    OnNextDialog([&](QWidget& below) {
        run(below);
        static_cast<QDialog&>(below).reject();
    });
    QDialog().exec();
}

double AlphaOf(const QWidget& window)
{
    return window.windowOpacity() * kOpaqueAlpha;
}

TEST(TransparencyDialog, TheWindowBelowFollowsAndKeepsWhatIsConfirmed)
{
    AboveADialog([](QWidget& below) {
        int alpha = 200;
        OnNextDialog([&](QWidget& dialog) {
            PressKey(dialog, Qt::Key_End);
            EXPECT_NEAR(AlphaOf(below), kLeastAlpha, 0.5) << "while the dialog is open";
            PressKey(dialog, Qt::Key_Left);
            EXPECT_NEAR(AlphaOf(below), kLeastAlpha + 1, 0.5);
            PressKey(dialog, Qt::Key_Return);
        });
        EXPECT_TRUE(ShowTransDlg(alpha));
        EXPECT_EQ(alpha, kLeastAlpha + 1);
        EXPECT_NEAR(AlphaOf(below), kLeastAlpha + 1, 0.5);
    });
}

TEST(TransparencyDialog, CancelGivesTheFormerOpacityBack)
{
    AboveADialog([](QWidget& below) {
        below.setWindowOpacity(220.0 / kOpaqueAlpha);
        int alpha = 200;
        OnNextDialog([&](QWidget& dialog) {
            PressKey(dialog, Qt::Key_End);
            PressKey(dialog, Qt::Key_Escape);
        });
        EXPECT_FALSE(ShowTransDlg(alpha));
        EXPECT_EQ(alpha, 200);
        EXPECT_NEAR(AlphaOf(below), 220, 0.5);
    });
}

TEST(TransparencyDialog, ValuesOutsideTheRangeCountAsOpaqueAndOthersStayExact)
{
    for (const auto& [given, shown] : {std::pair{99, 255}, {256, 255}, {100, 100}, {173, 173}}) {
        int alpha = given;
        OnNextDialog([](QWidget& dialog) { PressKey(dialog, Qt::Key_Return); });
        EXPECT_TRUE(ShowTransDlg(alpha)) << "also without a window below";
        EXPECT_EQ(alpha, shown);
    }
}

} // namespace
