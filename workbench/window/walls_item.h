#pragma once

#include "workbench/building/building.h"

#include <QGraphicsItem>
#include <QLineF>

#include <memory>
#include <vector>

namespace workbench {

/// The walls of a floor with the windows in them, below all rooms. A wall is as thick as an outer
/// one; where the next room is nearer, that room's floor covers the rest of it.
class CWallsItem : public QGraphicsItem
{
public:
    CWallsItem();

    void SetRooms(const std::vector<std::shared_ptr<const CRoom>>& rooms);

    QRectF boundingRect() const override { return m_bounds; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    struct CWindow
    {
        QRectF oeffnung;
        /// The frame's lines and those of the glass.
        std::vector<QLineF> rahmen;
        std::vector<QLineF> glas;
    };

    static CWindow MakeWindow(const CRoom& room, const CRadiatorPlace& place);
    void PaintWindowLines(QPainter& painter, const QRectF& exposed) const;

    QRectF m_bounds;
    /// Rooms with their walls around them.
    std::vector<QRectF> m_walled;
    std::vector<CWindow> m_windows;
};

} // namespace workbench
