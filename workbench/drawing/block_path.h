#pragma once

#include "platform/color.h"
#include "workbench/dxf/layer_colors.h"

#include <QPainterPath>
#include <QTransform>

#include <vector>

namespace workbench {

/// All that a block draws in one colour.
struct CColorPath
{
    COLORREF color = 0;
    QPainterPath path;
};

/// The block as paths for white paper, in the block's unit with y upwards and its base point at the
/// origin; a path for each colour, in the order in which the colours first appear. Colours are the
/// entities' own or those of their layers, and black for what takes its colour from the place of
/// insertion.
std::vector<CColorPath> MakeBlockPaths(const CLayerColors& layers, const CDxfBlock& block);

/// The smallest rectangle around the paths; a null one if they draw nothing.
QRectF BoundsOf(const std::vector<CColorPath>& paths);

/// Puts what has these bounds into a plan: stretched to a length and a depth, turned by degrees
/// counter-clockwise, and with its middle in that place.
QTransform PlaceInPlan(const QRectF& bounds, const QPointF& middle, double degrees, double length,
                       double depth);

} // namespace workbench
