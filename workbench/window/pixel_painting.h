#pragma once

#include <QPainter>

namespace workbench {

/// As long as it lives a painter that was in the plan's metres paints in pixels with y downwards,
/// so that texts and signs stand upright and have one size at every zoom.
class CPixelPainting
{
public:
    explicit CPixelPainting(QPainter& painter)
        : m_painter(painter), m_fromPlan(painter.worldTransform())
    {
        painter.resetTransform();
    }

    ~CPixelPainting() { m_painter.setWorldTransform(m_fromPlan); }

    CPixelPainting(const CPixelPainting&) = delete;
    CPixelPainting& operator=(const CPixelPainting&) = delete;

    /// Pixels of a place in the plan.
    QPointF Map(const QPointF& place) const { return m_fromPlan.map(place); }
    QRectF Map(const QRectF& area) const { return m_fromPlan.mapRect(area); }

private:
    QPainter& m_painter;
    QTransform m_fromPlan;
};

} // namespace workbench
