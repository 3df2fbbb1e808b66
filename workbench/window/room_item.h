#pragma once

#include "workbench/plan/coverage.h"
#include "workbench/window/radiator_drawing.h"
#include "workbench/window/room_label.h"

#include <QGraphicsItem>

#include <memory>
#include <optional>
#include <vector>

namespace workbench {

/// What a plan shows of its rooms, beside what its scale allows.
struct CPlanOptions
{
    /// Connection points and valves.
    bool bConnections = true;
};

/// A room of the plan with all that stands in it, in metres. One item for all of that keeps a floor
/// of thousands of rooms fluent.
class CRoomItem : public QGraphicsItem
{
public:
    /// The options are the scene's and outlive the item. The room must exist.
    CRoomItem(const CPlanOptions& options, const CBuilding& building, const CRoomRef& ref,
              const CPlanBlocks& blocks);

    /// Shows another state of the room, or another room.
    void SetRoom(const CBuilding& building, const CRoomRef& ref, const CPlanBlocks& blocks);

    const std::shared_ptr<const CRoom>& GetRoom() const { return m_room; }

    /// How the room stood when it was set.
    Coverage GetCoverage() const { return m_coverage; }

    /// The floor between the walls.
    const QRectF& GetOutline() const { return m_outline; }
    const QRectF& OutlineOf(std::size_t radiator) const;

    /// The radiator that stands there or not more than `tolerance` metres beside.
    std::optional<std::size_t> RadiatorAt(const QPointF& place, double tolerance) const;

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    /// What radiators and their labels leave of the floor, in metres.
    QRectF FreeArea(double scale) const;
    bool IsTaken(const QRectF& place, double scale) const;
    /// The first corner that is free, from the upper right one.
    QRectF SignPlace(double scale) const;
    void PaintTexts(QPainter& painter, double scale) const;

    const CPlanOptions& m_options;
    std::shared_ptr<const CRoom> m_room;
    std::vector<CRadiatorDrawing> m_radiators;
    Coverage m_coverage;
    CRoomLabel m_label;
    QRectF m_outline;
    QRectF m_bounds;
};

} // namespace workbench
