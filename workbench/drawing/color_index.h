#pragma once

#include "platform/color.h"

namespace workbench {

/// Colour of a CAD colour index: 1 to 9 the basic colours, 10 to 249 a wheel of 24 hues in five
/// brightnesses and two saturations, 250 to 255 greys from dark to white. Any other index is that
/// of the drawing's default colour, white.
COLORREF ColorFromIndex(int index);

/// The same for lines on white paper: what would be white is black.
COLORREF PaperColorFromIndex(int index);

} // namespace workbench
