#pragma once

#include "platform/bitmap.h"
#include "workbench/dxf/dxf_drawing.h"

namespace workbench {

/// Size of a picture that is asked for with 0, in pixels.
inline constexpr int kPictureWidth = 120;
inline constexpr int kPictureHeight = 90;

/// Largest side of a picture in pixels; more is cut to it.
inline constexpr int kMaxPictureSide = 2000;

/// The block on white paper, fitted into the picture with a margin around it and its proportions
/// kept. A width or height of 0 or less gives that of kPictureWidth or kPictureHeight. A block that
/// draws nothing gives blank paper.
CBitmap DrawBlockPicture(const std::vector<CDxfLayer>& layers, const CDxfBlock& block, int width,
                         int height);

} // namespace workbench
