#include "workbench/drawing/connection_symbol.h"

#include "workbench/drawing/hairline_item.h"

#include <QBrush>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// In metres. Shorter pipes are drawn longer, so that shaft and head can be told apart.
constexpr double kLeastLength = 0.18;
constexpr double kHeadLength = 0.09;
constexpr double kHeadWidth = 0.06;
constexpr double kRingRadius = 0.028;
constexpr double kDotRadius = 0.012;

/// A pipe steeper than about 84 degrees is upright.
constexpr double kUprightShare = 0.1;

/// In pixels at any zoom, so that the preview stays visible in a large plan.
constexpr double kPenWidth = 2.0;

/// A symbol that finds no free place within this many steps stays where it is.
constexpr int kMostSteps = 8;

double Distance(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

/// The way, a symbol's width, by which one that would cover another moves aside.
QPointF StepAside(const CConnectionMark& mark)
{
    // Pipes that leave one end in a row stand across it, upright ones side by side.
    const double width = 1.15 * WidthOfSymbol(mark);
    return IsUpright(mark) ? QPointF(width, 0.0)
                           : QPointF(-mark.richtung.y(), mark.richtung.x()) * width;
}

bool Covers(const CConnectionMark& mark, const CConnectionMark& other)
{
    return IsUpright(mark) == IsUpright(other) &&
           Distance(mark.punkt, other.punkt) < 0.5 * WidthOfSymbol(mark) &&
           Distance(mark.richtung, other.richtung) < 0.5;
}

QPainterPath LineBetween(const QPointF& from, const QPointF& to)
{
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

QGraphicsItem* MakeArrow(const CConnectionMark& mark)
{
    const QPointF along = mark.richtung / std::hypot(mark.richtung.x(), mark.richtung.y());
    const QPointF end = mark.punkt + along * std::max(mark.dLaenge, kLeastLength);
    const QPointF tip = mark.bRuecklauf ? end : mark.punkt;
    const QPointF tail = mark.bRuecklauf ? mark.punkt : end;
    const QPointF back = mark.bRuecklauf ? -along : along;
    const QPointF across = QPointF(-along.y(), along.x()) * (kHeadWidth / 2.0);
    const QPointF neck = tip + back * kHeadLength;

    auto* const shaft = new CHairlineItem(LineBetween(tail, neck), mark.farbe, kPenWidth);
    auto* const head =
        new QGraphicsPolygonItem(QPolygonF({tip, neck + across, neck - across}), shaft);
    head->setPen(Qt::NoPen);
    head->setBrush(mark.farbe);
    return shaft;
}

void AddDot(const CConnectionMark& mark, QGraphicsItem* ring)
{
    auto* const dot =
        new QGraphicsEllipseItem(mark.punkt.x() - kDotRadius, mark.punkt.y() - kDotRadius,
                                 2.0 * kDotRadius, 2.0 * kDotRadius, ring);
    dot->setPen(Qt::NoPen);
    dot->setBrush(mark.farbe);
}

void AddCross(const CConnectionMark& mark, QGraphicsItem* ring)
{
    const double reach = kRingRadius * std::sqrt(0.5);
    QPainterPath cross;
    for (const QPointF& arm : {QPointF(reach, reach), QPointF(reach, -reach)}) {
        cross.moveTo(mark.punkt - arm);
        cross.lineTo(mark.punkt + arm);
    }
    new CHairlineItem(cross, mark.farbe, kPenWidth, ring);
}

QGraphicsItem* MakeRing(const CConnectionMark& mark)
{
    QPainterPath circle;
    circle.addEllipse(mark.punkt, kRingRadius, kRingRadius);
    auto* const ring = new CHairlineItem(circle, mark.farbe, kPenWidth);
    ring->setBrush(Qt::white);
    const double water = mark.bRuecklauf ? mark.dAufwaerts : -mark.dAufwaerts;
    if (water > 0.0) {
        AddDot(mark, ring);
    } else if (water < 0.0) {
        AddCross(mark, ring);
    }
    return ring;
}

} // namespace

bool IsUpright(const CConnectionMark& mark)
{
    return std::hypot(mark.richtung.x(), mark.richtung.y()) < kUprightShare;
}

QGraphicsItem* MakeConnectionSymbol(const CConnectionMark& mark)
{
    return IsUpright(mark) ? MakeRing(mark) : MakeArrow(mark);
}

double WidthOfSymbol(const CConnectionMark& mark)
{
    return IsUpright(mark) ? 2.0 * kRingRadius : kHeadWidth;
}

CStandingMarks::Cell CStandingMarks::CellOf(const QPointF& place)
{
    // As wide as a symbol, so that what covers it stands in a cell beside its own at most.
    constexpr double kSide = kHeadWidth;
    return {std::llround(place.x() / kSide), std::llround(place.y() / kSide)};
}

void CStandingMarks::Add(const CConnectionMark& mark)
{
    m_cells[CellOf(mark.punkt)].push_back(mark);
}

bool CStandingMarks::IsCovered(const CConnectionMark& mark) const
{
    const auto [x, y] = CellOf(mark.punkt);
    for (std::int64_t column = x - 1; column <= x + 1; ++column) {
        for (std::int64_t row = y - 1; row <= y + 1; ++row) {
            const auto cell = m_cells.find({column, row});
            if (cell != m_cells.end() &&
                std::ranges::any_of(cell->second, [&](const CConnectionMark& other) {
                    return Covers(mark, other);
                })) {
                return true;
            }
        }
    }
    return false;
}

QPointF CStandingMarks::PlaceBeside(CConnectionMark mark) const
{
    const QPointF step = StepAside(mark);
    const QPointF place = mark.punkt;
    for (int i = 0; i < kMostSteps; ++i, mark.punkt += step) {
        if (!IsCovered(mark)) {
            return mark.punkt;
        }
    }
    return place;
}

} // namespace workbench
