#pragma once

#include "platform/export.h"
#include "platform/text.h"

class CDrawer;

/// HostPrompts: dialogs that the host lends to its modules. Each is modal and returns when the user
/// has answered; each lies above the active modal dialog, if there is one.

/// Least alpha of a window that the user can choose, so that no window gets lost to the eye.
inline constexpr int kLeastAlpha = 100;
inline constexpr int kOpaqueAlpha = 255;

/// Lets the user choose how opaque the active modal dialog is: `alpha` goes in and out, 100 to 255
/// (a value outside counts as 255). The dialog changes while the user tries values. True when
/// confirmed; otherwise `alpha` stays and the dialog gets its former opacity back.
HOST_API bool ShowTransDlg(int& alpha);

/// Lets the user choose a layer of the drawing, or name a new one and give it a colour. `layer` is
/// the one to begin with, `farbe` the colour index (1 to 255) for a layer that is not in the
/// drawing. True when confirmed: `layer` is then the name, never empty, and `farbe` the colour
/// index of that layer. Otherwise both stay. Without a `drawer` the list is empty and a name may
/// still be entered.
HOST_API bool ShowBigLayerDlg(CDrawer* drawer, CString& layer, int& farbe);
