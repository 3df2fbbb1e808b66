#pragma once

#include "tools/dialog_gallery.h"

/// The radiator selection in the states that differ to the eye.
std::vector<GalleryEntry> RadiatorGallery();
