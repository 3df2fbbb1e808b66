#pragma once

#include "platform/geometry.h"

#include <functional>

class CDialog;

/// What dialogs need around them.

/// Makes sure that there is an application object; a host that has one keeps it. From then on
/// messages of the module come as message boxes. Called by every dialog that opens.
void EnsureApplication();

/// Size of all screens together.
CSize GetVirtualScreenSize();

/// Width of a button of the caption bar in pixels.
int GetCaptionButtonWidth();

/// Factor by which dialogs are larger than at the size of their templates.
double GetDialogScale();

/// Makes dialogs open as if the system's font had that size in points; 0 for the system's own.
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
