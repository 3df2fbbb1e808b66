#pragma once

#include <QColor>
#include <QGraphicsPathItem>

namespace workbench {

/// A path drawn with a pen that keeps its width in pixels at every zoom. The toolkit's own items
/// take such a width for one in the scene's unit when they state their bounds, which here would be
/// metres.
class CHairlineItem : public QGraphicsPathItem
{
public:
    CHairlineItem(const QPainterPath& path, const QColor& color, double pixels,
                  QGraphicsItem* parent = nullptr);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
};

} // namespace workbench
