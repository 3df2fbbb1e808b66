#pragma once

#include "host_defaults/catalog/icon_drawing.h"

namespace host_defaults {

/// The shapes of an icon by its number (LumoIcons), from the lowest to the topmost. Empty for a
/// number that has no icon.
const std::vector<CIconShape>& IconShapes(int index);

} // namespace host_defaults
