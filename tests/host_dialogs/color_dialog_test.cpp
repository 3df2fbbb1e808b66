#include "host/host_base.h"
#include "host_dialogs/dialog_driver.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSpinBox>

namespace {

TEST(ColorDialog, ArrowsMoveAndEnterConfirms)
{
    int index = 10;
    OnNextDialog([](QWidget& dialog) {
        PressKey(dialog, Qt::Key_Right);
        PressKey(dialog, Qt::Key_Down);
        PressKey(dialog, Qt::Key_Return);
    });
    EXPECT_TRUE(GetColorDlg(index));
    EXPECT_EQ(index, 21);
}

TEST(ColorDialog, EscapeLeavesTheIndex)
{
    int index = 10;
    OnNextDialog([](QWidget& dialog) {
        PressKey(dialog, Qt::Key_Right);
        PressKey(dialog, Qt::Key_Escape);
    });
    EXPECT_FALSE(GetColorDlg(index));
    EXPECT_EQ(index, 10);
}

TEST(ColorDialog, WithoutAColourThereIsNothingToConfirmUntilANumberIsGiven)
{
    for (const int none : {0, 256, -5}) {
        int index = none;
        OnNextDialog([](QWidget& dialog) {
            PressKey(dialog, Qt::Key_Return);
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_FALSE(Child<QPushButton>(dialog).isEnabled());
            Child<QSpinBox>(dialog).setValue(142);
            PressKey(dialog, Qt::Key_Return);
        });
        EXPECT_TRUE(GetColorDlg(index));
        EXPECT_EQ(index, 142);
    }
}

} // namespace
