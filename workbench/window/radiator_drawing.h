#pragma once

#include "workbench/plan/placement.h"
#include "workbench/plan/plan_edit.h"
#include "workbench/window/plan_blocks.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QTransform>

#include <memory>
#include <vector>

namespace workbench {

/// A radiator as it stands in the plan: its block, its connection points and valves, and a short
/// label. Everything that painting needs is made once; a change makes a new drawing.
class CRadiatorDrawing
{
public:
    CRadiatorDrawing(const CBuilding& building, const CRadiatorRef& ref, const CPlanBlocks& blocks);

    /// The radiator seen from above, in metres.
    const QRectF& GetOutline() const { return m_outline; }

    /// All that is ever painted of it but the label, in metres.
    const QRectF& GetBounds() const { return m_bounds; }

    /// The direction from its wall into the room.
    QPointF Inward() const;

    /// Paints with a painter in metres, at `scale` pixels a metre: far away a bar in the colour of
    /// its layer, near at hand the block, and with `connections` its points and valves.
    void Paint(QPainter& painter, double scale, bool connections) const;

    /// What is painted of it at that scale, with the space for its label, in metres.
    QRectF TakenArea(double scale) const;

    /// Paints the label beside the radiator and along it, with a painter in metres; nothing where
    /// there is no space for the whole of it.
    void PaintLabel(QPainter& painter, double scale) const;

private:
    struct CValve
    {
        std::shared_ptr<const CPlanBlock> block;
        QTransform place;
    };

    struct CDot
    {
        QPointF punkt;
        QColor farbe;
    };

    void AddConnections(const CBuilding& building, const CRadiatorRef& ref,
                        const CPlanBlocks& blocks);
    void AddValves(const CBuilding& building, const CRadiatorRef& ref, const CPlanBlocks& blocks);
    bool HasLabel(double scale) const;
    void PaintBlock(QPainter& painter) const;
    void PaintConnections(QPainter& painter) const;

    CRadiatorPose m_pose;
    QRectF m_outline;
    QRectF m_bounds;
    QColor m_farbe;
    QString m_strLabel;
    /// Null for a plain rectangle.
    std::shared_ptr<const CPlanBlock> m_block;
    QTransform m_place;
    std::vector<CValve> m_valves;
    /// Connection points that have a valve.
    std::vector<CDot> m_dots;
    /// Symbols of those that have none, in no scene.
    std::vector<std::unique_ptr<QGraphicsItem>> m_symbols;
};

} // namespace workbench
