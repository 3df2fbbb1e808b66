#include "tests/dialog_support/dialog_run.h"

#include "uikit/application.h"

void PrepareDialogs()
{
    EnsureApplication();
    SetDialogFontSize(8);
}

void RunDialog(const std::function<void()>& open, const std::function<void(CDialog&)>& work)
{
    const DialogObserver before = SetDialogObserver([&](CDialog& dialog) {
        work(dialog);
        dialog.EndDialog(kIdCancel);
    });
    open();
    SetDialogObserver(before);
}
