#include "host/host_base.h"
#include "tests/host_defaults/host_dialog_driver.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSpinBox>

#include <utility>

namespace {

TEST(ColorDialog, ArrowsMoveAndEnterAloneConfirms)
{
    for (const auto& [key, chosen] : {std::pair(Qt::Key_Return, 21), {Qt::Key_Escape, 10}}) {
        int index = 10;
        OnNextDialog([pressed = key](QWidget& dialog) {
            PressKey(dialog, Qt::Key_Right);
            PressKey(dialog, Qt::Key_Down);
            PressKey(dialog, pressed);
        });
        EXPECT_EQ(GetColorDlg(index), key == Qt::Key_Return);
        EXPECT_EQ(index, chosen);
    }
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
