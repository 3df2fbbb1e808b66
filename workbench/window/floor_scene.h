#pragma once

#include "workbench/window/plan_marks.h"
#include "workbench/window/room_item.h"

#include <QGraphicsScene>

#include <optional>
#include <vector>

namespace workbench {

class CWallsItem;

/// The plan of one floor: rooms with what they need and get, windows, and the radiators that stand
/// in them. The unit is the metre, with y upwards, as CPlanView shows it.
///
/// The user marks rooms or radiators, never both at once:
///  - a click marks what lies under the pointer and nothing else, or nothing on empty ground; with
///    Ctrl or Shift it adds to what is marked, or takes out what is;
///  - dragging with Shift held draws a band and adds the radiators that it touches;
///  - Tab and Shift+Tab mark the next room and the one before, and go on to the next control behind
///    the last and before the first room; with Shift, the right and left arrow add the next room
///    and the one before;
///  - Space marks the next radiator of the room; with Shift it adds it;
///  - Ctrl+A marks all rooms, or all radiators where radiators are marked; Escape marks nothing.
/// A double click, or Return with one room or radiator marked, activates it. The right button marks
/// what lies under the pointer, unless it is marked already.
class CFloorScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit CFloorScene(QObject* parent = nullptr);
    ~CFloorScene() override;

    /// Gives the radiators' and valves' blocks by name; neither is needed afterwards, and `valves`
    /// may be null. Until then, and for names without a block, radiators are rectangles and valves
    /// are not drawn.
    void SetBlocks(const CDxfDrawing& radiators, const CBlockLibrary* valves);

    /// Shows a floor, or nothing if the building has no such one. Only rooms that are others than
    /// before are made anew. What is marked stays so where it is still there: on the same floor, in
    /// a room of the same name.
    void ShowFloor(const CBuilding& building, std::size_t floor);

    /// Shows connection points and valves, or leaves them out as long as a preview shows others.
    void ShowConnections(bool show);

    /// In the order of the building.
    std::vector<CRadiatorRef> GetMarkedRadiators() const;
    std::vector<CRoomRef> GetMarkedRooms() const;

    /// Marks these and nothing else; those that the floor does not have are passed over.
    void MarkRadiators(const std::vector<CRadiatorRef>& radiators);
    void MarkRooms(const std::vector<CRoomRef>& rooms);

    /// Moves every view so that it shows a room of the floor.
    void ShowInViews(const CRoomRef& room);

    /// Place of a room between its walls; null for one that the floor does not have.
    QRectF BoundsOf(const CRoomRef& room) const;

signals:
    /// Something else is marked than before, by the user or by a call.
    void MarkChanged();
    void RoomActivated(const CRoomRef& room);
    void RadiatorActivated(const CRadiatorRef& radiator);
    /// The user asks, by right button or key, what can be done with what is marked, at a place of
    /// the screen.
    void MenuAsked(const QPoint& place);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void helpEvent(QGraphicsSceneHelpEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& rect) override;

private:
    /// What lies at a place: a room, and one of its radiators if there is one.
    struct CHit
    {
        CRoomRef room;
        std::optional<std::size_t> radiator;
    };

    bool Has(const CRoomRef& room) const;
    bool Has(const CRadiatorRef& radiator) const;
    const CRoomItem& ItemOf(const CRoomRef& room) const { return *m_items[room.nRoom]; }
    std::optional<CHit> HitAt(const QPointF& place, const QWidget* viewport) const;

    void UpdateItems();
    void Mark(CPlanMarks marks);
    void MarkHit(const CHit& hit, bool extend);
    void SetCurrent(std::optional<CRoomRef> room);
    void Activate(const CHit& hit);
    bool ActivateMarked();

    bool HandleKey(const QKeyEvent& key);
    bool MarkNextRoom(int step, bool extend);
    bool MarkNextRadiator(bool extend);
    void MarkAll();
    void MarkBand(const QRectF& band);

    void PaintMarks(QPainter& painter, const QRectF& exposed, double scale) const;

    CPlanOptions m_options;
    CPlanBlocks m_blocks;
    /// As shown; copies share their rooms.
    CBuilding m_building;
    std::size_t m_nFloor = 0;
    CWallsItem* m_pWalls;
    /// A room each, in the floor's order; the scene owns them.
    std::vector<CRoomItem*> m_items;
    CPlanMarks m_marks;
    /// The room from which the keys go on.
    std::optional<CRoomRef> m_current;
    /// Where the left button went down, as long as it may become a click or a band.
    std::optional<QPointF> m_pressed;
    std::optional<QRectF> m_band;
};

} // namespace workbench
