#pragma once

#include "workbench/building/building.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>

#include <cmath>

namespace workbench {

/// The rectangle in metres.
inline QRectF MetresOf(const CFloorRect& rect)
{
    constexpr double kMillimetres = 1000.0;
    return {rect.x / kMillimetres, rect.y / kMillimetres, rect.breite / kMillimetres,
            rect.tiefe / kMillimetres};
}

/// Pixels a metre of a painter in metres.
inline double ScaleOf(const QPainter& painter)
{
    return std::sqrt(std::fabs(painter.worldTransform().determinant()));
}

/// A pen of that many pixels at every zoom.
inline QPen PixelPen(const QColor& color, double pixels = 1.0)
{
    QPen pen(color, pixels);
    pen.setCosmetic(true);
    return pen;
}

} // namespace workbench
