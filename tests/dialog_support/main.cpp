// Dialogs without a screen, unless the caller names one, at the size of their templates. Controls
// need an application object even where no dialog has opened yet.

#include "tools/pretended_screen.h"
#include "uikit/application.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const CPretendedScreen screen(kAmple, kAmple);
    testing::InitGoogleTest(&argc, argv);
    EnsureApplication();
    SetDialogFontSize(8);
    return RUN_ALL_TESTS();
}
