#pragma once

#include "platform/color.h"
#include "uikit/wnd.h"

/// Draws the strip at the left edge of a dialog on its control: a gradient and the host's product
/// name, reading upward. With `schlicht` the banner never takes the style of the system's
/// theme. Does nothing if there is no control.
void BannerZeichnen(const CWnd& control, bool schlicht);

/// Fills a swatch with a colour and frames it.
void FarbfeldZeichnen(const CWnd& control, COLORREF farbe);
