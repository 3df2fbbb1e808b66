#pragma once

#include "reference_host/catalog/icon_drawing.h"

namespace reference_host {

/// The shapes of an icon by its number (LumoIcons), from the lowest to the topmost. Empty for a
/// number that has no icon.
const std::vector<CIconShape>& IconShapes(int index);

} // namespace reference_host
