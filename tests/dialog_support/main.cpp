// Dialogs without a screen, unless the caller names one, at the size of their templates. Controls
// need an application object even where no dialog has opened yet.

#include "uikit/application.h"

#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleTest(&argc, argv);
    EnsureApplication();
    SetDialogFontSize(8);
    return RUN_ALL_TESTS();
}
