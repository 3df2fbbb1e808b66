#include "workbench/window/room_item.h"

#include "workbench/window/coverage_look.h"
#include "workbench/window/pixel_painting.h"
#include "workbench/window/plan_geometry.h"

#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {

/// Pixels of a room's shorter side from which on it has a sign: in a small picture only rooms that
/// have to be looked after.
constexpr double kLeastOpenSigned = 9.0;
constexpr double kLeastSigned = 24.0;

/// Metres of a sign, what it has in pixels at least and at most, and its distance to the corner.
constexpr double kSign = 0.4;
constexpr double kLeastSign = 7.0;
constexpr double kMostSign = 18.0;
constexpr double kSignGap = 3.0;

/// Pixels of a room's shorter side from which on it has texts.
constexpr double kLeastLabelledSide = 24.0;

/// Metres that texts keep to walls and radiators.
constexpr double kTextGap = 0.08;

/// Takes out of an area what something needs that stands along a wall; the room lies `inward`.
void CutAlongWall(QRectF& area, const QPointF& inward, const QRectF& taken)
{
    if (inward.y() > 0.5) {
        area.setTop(std::max(area.top(), taken.bottom()));
    } else if (inward.y() < -0.5) {
        area.setBottom(std::min(area.bottom(), taken.top()));
    } else if (inward.x() > 0.0) {
        area.setLeft(std::max(area.left(), taken.right()));
    } else {
        area.setRight(std::min(area.right(), taken.left()));
    }
}

/// What of an area's corner a sign takes, as the side of a square.
double TakenCorner(const QRectF& area, const QRectF& sign)
{
    const QRectF taken = area & sign;
    return std::max(taken.width(), taken.height());
}

} // namespace

CRoomItem::CRoomItem(const CPlanOptions& options, const CBuilding& building, const CRoomRef& ref,
                     const CPlanBlocks& blocks)
    : m_options(options), m_coverage(CoverageOf(building, RoomOf(building, ref))),
      m_label(RoomOf(building, ref), m_coverage)
{
    SetRoom(building, ref, blocks);
}

void CRoomItem::SetRoom(const CBuilding& building, const CRoomRef& ref, const CPlanBlocks& blocks)
{
    prepareGeometryChange();
    m_room = building.floors[ref.nFloor].rooms[ref.nRoom];
    m_coverage = CoverageOf(building, *m_room);
    m_label = CRoomLabel(*m_room, m_coverage);
    m_outline = MetresOf(m_room->grundriss);
    m_bounds = m_outline;
    m_radiators.clear();
    for (std::size_t i = 0; i < m_room->heizkoerper.size(); ++i) {
        m_radiators.emplace_back(building, CRadiatorRef{ref, i}, blocks);
        m_bounds |= m_radiators.back().GetBounds();
    }
    update();
}

const QRectF& CRoomItem::OutlineOf(std::size_t radiator) const
{
    return m_radiators[radiator].GetOutline();
}

std::optional<std::size_t> CRoomItem::RadiatorAt(const QPointF& place, double tolerance) const
{
    for (std::size_t i = 0; i < m_radiators.size(); ++i) {
        const QRectF reach =
            m_radiators[i].GetOutline().adjusted(-tolerance, -tolerance, tolerance, tolerance);
        if (reach.contains(place)) {
            return i;
        }
    }
    return std::nullopt;
}

void CRoomItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const double scale = ScaleOf(*painter);
    painter->fillRect(m_outline, FillOf(m_coverage));
    for (const CRadiatorDrawing& radiator : m_radiators) {
        radiator.Paint(*painter, scale, m_options.bConnections);
    }
    PaintTexts(*painter, scale);
}

QRectF CRoomItem::FreeArea(double scale) const
{
    QRectF area = m_outline;
    for (const CRadiatorDrawing& radiator : m_radiators) {
        CutAlongWall(area, radiator.Inward(), radiator.TakenArea(scale));
    }
    return area.adjusted(kTextGap, kTextGap, -kTextGap, -kTextGap);
}

bool CRoomItem::IsTaken(const QRectF& place, double scale) const
{
    return std::ranges::any_of(m_radiators, [&](const CRadiatorDrawing& radiator) {
        return radiator.TakenArea(scale).intersects(place);
    });
}

QRectF CRoomItem::SignPlace(double scale) const
{
    const double side = std::min(m_outline.width(), m_outline.height());
    const double sign = std::clamp(kSign, kLeastSign / scale, kMostSign / scale);
    const double gap = std::clamp((side - sign) / 2.0, 0.0, kSignGap / scale);
    const QRectF starts = m_outline.adjusted(gap, gap, -gap - sign, -gap - sign);
    // Upwards is where y grows.
    const QPointF corners[] = {starts.bottomRight(), starts.bottomLeft(), starts.topRight(),
                               starts.topLeft()};
    const auto isFree = [&](const QPointF& corner) {
        return !IsTaken(QRectF(corner, QSizeF(sign, sign)), scale);
    };
    const auto found = std::ranges::find_if(corners, isFree);
    return {found != std::end(corners) ? *found : corners[0], QSizeF(sign, sign)};
}

void CRoomItem::PaintTexts(QPainter& painter, double scale) const
{
    const double side = std::min(m_outline.width(), m_outline.height()) * scale;
    if (side < (IsOpen(m_coverage) ? kLeastOpenSigned : kLeastSigned)) {
        return;
    }
    for (const CRadiatorDrawing& radiator : m_radiators) {
        radiator.PaintLabel(painter, scale);
    }
    const QRectF sign = SignPlace(scale);
    const QRectF free = FreeArea(scale);
    const CPixelPainting inPixels(painter);
    PaintSign(painter, m_coverage, inPixels.Map(sign));
    if (side >= kLeastLabelledSide && free.isValid()) {
        // Of the plan's sizes: those of mapped areas differ in their last digits as the plan moves.
        m_label.Paint(painter, inPixels.Map(free.center()), free.size() * scale,
                      TakenCorner(free, sign) * scale, scale);
    }
}

} // namespace workbench
