#include "workbench/drawing/hairline_item.h"

#include <QPen>

namespace workbench {

namespace {
/// Metres added on every side, so that a level line has an extent and is drawn.
constexpr double kLeastExtent = 0.001;
} // namespace

CHairlineItem::CHairlineItem(const QPainterPath& path, const QColor& color, double pixels,
                             QGraphicsItem* parent)
    : QGraphicsPathItem(path, parent)
{
    QPen pen(color, pixels);
    pen.setCosmetic(true);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    setPen(pen);
}

QRectF CHairlineItem::boundingRect() const
{
    return path().boundingRect().adjusted(-kLeastExtent, -kLeastExtent, kLeastExtent, kLeastExtent);
}

QPainterPath CHairlineItem::shape() const
{
    return path();
}

} // namespace workbench
