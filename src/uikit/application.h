#pragma once

#include "platform/geometry.h"
#include "platform/message.h"
#include "uikit/dialog_template.h"

#include <functional>

class CDialog;

/// What dialogs need around them.

/// Makes sure that there is an application object; a host that has one keeps it. False if that one
/// has no windows, so that no dialog can be shown. Called by every dialog that opens.
bool EnsureApplication();

/// Shows a message in a box above the active dialog and returns when the user has closed it. Where
/// at that moment no application object with windows exists it writes to standard error instead.
void ShowMessageBox(const MessageBoxText& message);

/// Height of the primary screen, in the pixels in which dialogs are measured.
int GetPrimaryScreenHeight();

/// The font in which the system shows messages.
DialogFont GetMessageFont();

/// Size of all screens together.
CSize GetVirtualScreenSize();

/// Width of a button of the caption bar in pixels.
int GetCaptionButtonWidth();

/// Factor by which the open dialog is larger than at the size for which templates are made.
double GetDialogScale();

/// Makes all dialogs open in that size in points, whatever font they are to have; 0 for the size of
/// that font.
void SetDialogFontSize(double points);

/// Shows the busy cursor while it lives.
class CWaitCursor
{
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

/// Called with every dialog once it is shown, for programs that drive or photograph dialogs. An
/// empty one stands for none. Returns the one that was in force.
using DialogObserver = std::function<void(CDialog&)>;
DialogObserver SetDialogObserver(DialogObserver observer);
