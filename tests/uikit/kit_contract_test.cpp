#include "dialog_support/dialog_driver.h"

#include <gtest/gtest.h>

namespace {

const DialogTemplate& Template()
{
    using enum ControlKind;
    static const DialogTemplate dialog = {7000,
                                          L"Prova",
                                          120,
                                          60,
                                          frameFixed,
                                          {{10, edit, L"", 4, 4, 60, 13},
                                           {1, defaultButton, L"OK", 4, 40, 50, 14},
                                           {2, button, L"Annulla", 60, 40, 50, 14}}};
    return dialog;
}

TEST(KitContract, EnterAndEscEndADialog)
{
    CDialogDriver driver;
    driver.WhenOpens(7000, [](CDialogUser& user) { user.Press(Qt::Key_Return); });
    driver.WhenOpens(7000, [](CDialogUser& user) { user.Press(Qt::Key_Escape); });
    CDialog dialog(Template());
    EXPECT_EQ(dialog.DoModal(), kIdOk);
    EXPECT_EQ(dialog.DoModal(), kIdCancel);
}

} // namespace
