// What the user does in a plan with mouse and keys.

#include "workbench/window/floor_scene.h"

#include "workbench/window/plan_texts.h"

#include <QApplication>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneHelpEvent>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

/// Pixels beside a radiator that still count as on it.
constexpr double kTolerance = 4.0;

/// Pixels of a room's shorter side below which only the room can be pointed at.
constexpr double kLeastPointed = 40.0;

/// Pixels a metre of the view that an event came from; 0 if it came from none.
double ScaleOfView(const QWidget* viewport)
{
    const auto* view = viewport != nullptr
                           ? qobject_cast<const QGraphicsView*>(viewport->parentWidget())
                           : nullptr;
    return view != nullptr ? view->transform().m11() : 0.0;
}

bool Extends(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & (Qt::ControlModifier | Qt::ShiftModifier)) != Qt::NoModifier;
}

bool HasMoved(const QGraphicsSceneMouseEvent& event)
{
    const QPoint moved = event.screenPos() - event.buttonDownScreenPos(Qt::LeftButton);
    return moved.manhattanLength() >= QApplication::startDragDistance();
}

} // namespace

std::optional<CFloorScene::CHit> CFloorScene::HitAt(const QPointF& place,
                                                    const QWidget* viewport) const
{
    const auto found = std::ranges::find_if(
        m_items, [&](const CRoomItem* item) { return item->GetOutline().contains(place); });
    if (found == m_items.end()) {
        return std::nullopt;
    }
    const CRoomItem& item = **found;
    CHit hit{{m_nFloor, static_cast<std::size_t>(found - m_items.begin())}, std::nullopt};
    const double scale = ScaleOfView(viewport);
    const double side = std::min(item.GetOutline().width(), item.GetOutline().height());
    if (side * scale >= kLeastPointed) {
        hit.radiator = item.RadiatorAt(place, kTolerance / scale);
    }
    return hit;
}

void CFloorScene::mousePressEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressed = event->scenePos();
        event->accept();
    } else {
        event->ignore();
    }
}

void CFloorScene::mouseMoveEvent(QGraphicsSceneMouseEvent* event)
{
    if (!m_pressed || !event->buttons().testFlag(Qt::LeftButton)) {
        return;
    }
    const bool begins = event->modifiers().testFlag(Qt::ShiftModifier) && HasMoved(*event);
    if (m_band || begins) {
        m_band = QRectF(*m_pressed, event->scenePos()).normalized();
        update();
    }
}

void CFloorScene::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_pressed) {
        return;
    }
    m_pressed.reset();
    if (m_band) {
        const QRectF band = *std::exchange(m_band, std::nullopt);
        update();
        MarkBand(band);
        return;
    }
    const bool extend = Extends(event->modifiers());
    const auto hit = HitAt(event->scenePos(), event->widget());
    if (!hit) {
        Mark(extend ? m_marks : CPlanMarks());
        return;
    }
    MarkHit(*hit, extend);
}

void CFloorScene::MarkHit(const CHit& hit, bool extend)
{
    m_current = hit.room;
    Mark(hit.radiator ? MarksAfter(m_marks, CRadiatorRef{hit.room, *hit.radiator}, extend)
                      : MarksAfter(m_marks, hit.room, extend));
}

void CFloorScene::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event)
{
    // The release that follows is no further click.
    m_pressed.reset();
    const auto hit = HitAt(event->scenePos(), event->widget());
    if (event->button() == Qt::LeftButton && hit) {
        event->accept();
        Activate(*hit);
    }
}

void CFloorScene::contextMenuEvent(QGraphicsSceneContextMenuEvent* event)
{
    const auto hit = event->reason() == QGraphicsSceneContextMenuEvent::Mouse
                         ? HitAt(event->scenePos(), event->widget())
                         : std::nullopt;
    const bool isMarked =
        hit && (hit->radiator ? m_marks.radiators.contains({hit->room, *hit->radiator})
                              : m_marks.rooms.contains(hit->room));
    if (hit && !isMarked) {
        MarkHit(*hit, false);
    }
    event->accept();
    emit MenuAsked(event->screenPos());
}

void CFloorScene::helpEvent(QGraphicsSceneHelpEvent* event)
{
    const auto hit = HitAt(event->scenePos(), event->widget());
    if (!hit) {
        QToolTip::hideText();
        return;
    }
    const CRoom& room = *ItemOf(hit->room).GetRoom();
    QToolTip::showText(event->screenPos(),
                       hit->radiator ? ToolTipOf(m_building, room, room.heizkoerper[*hit->radiator])
                                     : ToolTipOf(m_building, room),
                       event->widget());
    event->accept();
}

bool CFloorScene::event(QEvent* event)
{
    // Before the base class, which would take Tab to walk through items of its own.
    if (event->type() == QEvent::KeyPress && HandleKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QGraphicsScene::event(event);
}

bool CFloorScene::HandleKey(const QKeyEvent& key)
{
    const bool isShift = key.modifiers().testFlag(Qt::ShiftModifier);
    switch (key.key()) {
    case Qt::Key_Tab:
        return MarkNextRoom(isShift ? -1 : 1, false);
    case Qt::Key_Backtab:
        return MarkNextRoom(-1, false);
    case Qt::Key_Right:
        return isShift && MarkNextRoom(1, true);
    case Qt::Key_Left:
        return isShift && MarkNextRoom(-1, true);
    case Qt::Key_Space:
        return MarkNextRadiator(isShift);
    case Qt::Key_A:
        if (key.modifiers() != Qt::ControlModifier) {
            return false;
        }
        MarkAll();
        return true;
    case Qt::Key_Escape:
        if (m_marks.IsEmpty()) {
            return false;
        }
        Mark({});
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return ActivateMarked();
    default:
        return false;
    }
}

bool CFloorScene::MarkNextRoom(int step, bool extend)
{
    const auto count = static_cast<std::ptrdiff_t>(m_items.size());
    const std::ptrdiff_t start = step > 0 ? -1 : count;
    const std::ptrdiff_t from = m_current ? static_cast<std::ptrdiff_t>(m_current->nRoom) : start;
    const std::ptrdiff_t to = from + step;
    if (to < 0 || to >= count) {
        return false;
    }
    m_current = CRoomRef{m_nFloor, static_cast<std::size_t>(to)};
    ShowInViews(*m_current);
    CPlanMarks marks;
    marks.rooms = extend ? m_marks.rooms : std::set<CRoomRef>();
    marks.rooms.insert(*m_current);
    Mark(std::move(marks));
    return true;
}

bool CFloorScene::MarkNextRadiator(bool extend)
{
    if (!m_current || ItemOf(*m_current).GetRoom()->heizkoerper.empty()) {
        return false;
    }
    const std::size_t count = ItemOf(*m_current).GetRoom()->heizkoerper.size();
    // Behind the last one of this room that is marked.
    const auto last = std::find_if(m_marks.radiators.rbegin(), m_marks.radiators.rend(),
                                   [&](const CRadiatorRef& ref) { return ref.room == *m_current; });
    const std::size_t next = last != m_marks.radiators.rend() ? (last->nRadiator + 1) % count : 0;
    CPlanMarks marks;
    marks.radiators = extend ? m_marks.radiators : std::set<CRadiatorRef>();
    marks.radiators.insert({*m_current, next});
    Mark(std::move(marks));
    return true;
}

void CFloorScene::MarkAll()
{
    CPlanMarks marks;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        const CRoomRef room{m_nFloor, i};
        if (m_marks.radiators.empty()) {
            marks.rooms.insert(room);
            continue;
        }
        for (std::size_t k = 0; k < m_items[i]->GetRoom()->heizkoerper.size(); ++k) {
            marks.radiators.insert({room, k});
        }
    }
    Mark(std::move(marks));
}

void CFloorScene::MarkBand(const QRectF& band)
{
    CPlanMarks marks;
    marks.radiators = m_marks.radiators;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        for (std::size_t k = 0; k < m_items[i]->GetRoom()->heizkoerper.size(); ++k) {
            if (m_items[i]->OutlineOf(k).intersects(band)) {
                marks.radiators.insert({{m_nFloor, i}, k});
            }
        }
    }
    Mark(std::move(marks));
}

void CFloorScene::Activate(const CHit& hit)
{
    if (hit.radiator) {
        emit RadiatorActivated({hit.room, *hit.radiator});
    } else {
        emit RoomActivated(hit.room);
    }
}

bool CFloorScene::ActivateMarked()
{
    // Copies: who hears of it may mark something else.
    if (m_marks.radiators.size() == 1) {
        const CRadiatorRef radiator = *m_marks.radiators.begin();
        emit RadiatorActivated(radiator);
        return true;
    }
    if (m_marks.rooms.size() == 1) {
        const CRoomRef room = *m_marks.rooms.begin();
        emit RoomActivated(room);
        return true;
    }
    return false;
}

} // namespace workbench
