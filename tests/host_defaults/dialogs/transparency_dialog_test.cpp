#include "host/host_prompts.h"
#include "tests/host_defaults/host_dialog_driver.h"

#include <gtest/gtest.h>

#include <QDialog>

#include <utility>

namespace {

TEST(TransparencyDialog, TheWindowBelowFollowsAndKeepsWhatIsConfirmed)
{
    OnNextDialog([](QWidget& below) {
        const auto expectAlpha = [&](int alpha) {
            EXPECT_NEAR(below.windowOpacity() * kOpaqueAlpha, alpha, 0.5);
        };
        int alpha = 200;
        OnNextDialog([&](QWidget& dialog) {
            PressKey(dialog, Qt::Key_End);
            expectAlpha(kLeastAlpha); // while the dialog is open
            PressKey(dialog, Qt::Key_Left);
            expectAlpha(kLeastAlpha + 1);
            PressKey(dialog, Qt::Key_Return);
        });
        EXPECT_TRUE(ShowTransDlg(alpha));
        EXPECT_EQ(alpha, kLeastAlpha + 1);
        expectAlpha(kLeastAlpha + 1);
        static_cast<QDialog&>(below).reject();
    });
    QDialog().exec();
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
