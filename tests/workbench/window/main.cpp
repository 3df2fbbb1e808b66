// Windows without a screen, at one font size whatever the machine's is.

#include "tools/pretended_screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>

int main(int argc, char** argv)
{
    const CPretendedScreen screen(kAmple, kAmple);
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setPointSize(9);
    QApplication::setFont(font);
    return RUN_ALL_TESTS();
}
