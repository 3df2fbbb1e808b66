#pragma once

#include "platform/bitmap.h"
#include "platform/text.h"

/// The picture in a BMP, PNG or JPEG file, at its own size; the contents tell the kind, not the
/// name. Empty if there is no file, if it is damaged, or too large for a picture.
CBitmap LoadPictureFile(const CString& path);
