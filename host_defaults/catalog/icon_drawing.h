#pragma once

#include "platform/bitmap.h"

#include <vector>

namespace host_defaults {

/// Turns shapes into pixels: fills, strokes and nothing else, in flat colours.

struct CIconPoint
{
    double x = 0.0;
    double y = 0.0;
};

enum class IconForm
{
    /// A filled polygon; `points` are its corners.
    polygon,
    /// A stroke with round ends along `points`; `size` is its width.
    line,
    /// A filled circle about the one point; `size` is its radius.
    circle,
    /// A filled upright rectangle between two corners; `size` is the radius of its corners. The
    /// only form that is moved to whole pixels.
    box
};

struct CIconShape
{
    IconForm form;
    COLORREF color;
    std::vector<CIconPoint> points;
    double size = 0.0;
};

/// Side of the square in which shapes are given, x to the right and y downwards.
inline constexpr double kIconGrid = 16.0;

/// Draws the shapes, later ones above earlier ones, with smooth edges into a picture of that size;
/// the grid fills the largest square in its middle.
CBitmap DrawIcon(const std::vector<CIconShape>& shapes, int width, int height);

} // namespace host_defaults
