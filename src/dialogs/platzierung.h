#pragma once

#include "platform/text.h"
#include "uikit/dialog.h"

/// Opacity of a window that hides what lies behind it.
inline constexpr int kDeckend = 255;

/// Puts a dialog where it was kept under its key and makes it visible; without a kept place it
/// stays where it is. A dialog of fixed size keeps its size, whatever `ohneGroesse` says. `alpha`,
/// if given, takes the kept opacity, anything below 100 or above 255 becoming 255, and is applied.
void PlatzierungLaden(CDialog& dialog, const CString& schluessel, int* alpha, bool ohneGroesse);

/// Keeps the place of a dialog and its opacity under its key.
void PlatzierungSpeichern(const CDialog& dialog, const CString& schluessel, const int* alpha);
