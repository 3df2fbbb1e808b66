#include "workbench/window/walls_item.h"

#include "workbench/plan/placement.h"
#include "workbench/window/plan_geometry.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <cmath>

namespace workbench {

namespace {

/// Thickness of an outer wall in metres.
constexpr double kWall = 0.3;

/// Half the distance of the two lines that stand for the glass.
constexpr double kHalfGlass = 0.02;

/// Pixels a metre from which on the lines of a window can be told apart.
constexpr double kWindowScale = 25.0;

constexpr double kBelowRooms = -1.0;

const QColor kWallColor(84, 91, 100);
const QColor kOpeningColor(240, 247, 252);
const QColor kFrameColor(70, 78, 88);
const QColor kGlassColor(58, 132, 190);

} // namespace

CWallsItem::CWallsItem()
{
    setZValue(kBelowRooms);
    setFlag(ItemUsesExtendedStyleOption);
}

void CWallsItem::SetRooms(const std::vector<std::shared_ptr<const CRoom>>& rooms)
{
    m_walled.clear();
    m_windows.clear();
    QRectF bounds;
    for (const auto& room : rooms) {
        m_walled.push_back(MetresOf(room->grundriss).adjusted(-kWall, -kWall, kWall, kWall));
        bounds |= m_walled.back();
        for (const CRadiatorPlace& place : room->plaetze) {
            if (place.art == PlaceKind::window) {
                m_windows.push_back(MakeWindow(*room, place));
            }
        }
    }
    if (bounds != m_bounds) {
        prepareGeometryChange();
        m_bounds = bounds;
    }
    update();
}

CWallsItem::CWindow CWallsItem::MakeWindow(const CRoom& room, const CRadiatorPlace& place)
{
    const CPlaceLine line = LineOf(room, place);
    const QPointF from(line.dX1, line.dY1);
    const QPointF to(line.dX2, line.dY2);
    const double length = QLineF(from, to).length();
    const QPointF along = length > 0.0 ? (to - from) / length : QPointF();
    // The room lies on the left of the line, so the wall is on its right.
    const QPointF out = QPointF(along.y(), -along.x()) * kWall;
    const QPointF glass = out / kWall * kHalfGlass;
    const QPointF middle = out / 2;
    return {QRectF(from, to + out).normalized(),
            {{from, to}, {from + out, to + out}, {from, from + out}, {to, to + out}},
            {{from + middle - glass, to + middle - glass},
             {from + middle + glass, to + middle + glass}}};
}

void CWallsItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    // Smooth edges would be laid on twice where walls overlap, and show as steps.
    painter->setRenderHint(QPainter::Antialiasing, false);
    for (const QRectF& walled : m_walled) {
        if (walled.intersects(option->exposedRect)) {
            painter->fillRect(walled, kWallColor);
        }
    }
    for (const CWindow& window : m_windows) {
        if (window.oeffnung.intersects(option->exposedRect)) {
            painter->fillRect(window.oeffnung, kOpeningColor);
        }
    }
    painter->setRenderHint(QPainter::Antialiasing);
    if (ScaleOf(*painter) >= kWindowScale) {
        PaintWindowLines(*painter, option->exposedRect);
    }
}

void CWallsItem::PaintWindowLines(QPainter& painter, const QRectF& exposed) const
{
    for (const CWindow& window : m_windows) {
        if (window.oeffnung.intersects(exposed)) {
            painter.setPen(PixelPen(kFrameColor));
            painter.drawLines(window.rahmen.data(), static_cast<int>(window.rahmen.size()));
            painter.setPen(PixelPen(kGlassColor));
            painter.drawLines(window.glas.data(), static_cast<int>(window.glas.size()));
        }
    }
}

} // namespace workbench
