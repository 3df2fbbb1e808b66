#include "workbench/drawing/block_path.h"

#include "workbench/drawing/color_index.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

constexpr double kRadian = std::numbers::pi / 180.0;

/// An arc as flat as this is drawn straight: its radius would leave no digits for its ends.
constexpr double kLeastBulge = 1e-6;

/// Adds shapes to a path, with the base point moved to the origin.
class CPathMaker
{
public:
    CPathMaker(QPainterPath& path, const CDxfPoint& basis) : m_path(path), m_basis(basis) {}

    void operator()(const CDxfLine& line) const
    {
        m_path.moveTo(Moved(line.von));
        m_path.lineTo(Moved(line.bis));
    }

    void operator()(const CDxfCircle& circle) const
    {
        m_path.addEllipse(Moved(circle.mitte), circle.dRadius, circle.dRadius);
    }

    void operator()(const CDxfArc& arc) const
    {
        double sweep = std::fmod(arc.dBis - arc.dVon, 360.0);
        if (sweep <= 0.0) {
            sweep += 360.0;
        }
        const QPointF mitte = Moved(arc.mitte);
        m_path.arcMoveTo(SquareAround(mitte, arc.dRadius), -arc.dVon);
        AddArc(mitte, arc.dRadius, arc.dVon, sweep);
    }

    void operator()(const CDxfPolyline& polyline) const
    {
        const std::vector<CDxfVertex>& punkte = polyline.punkte;
        if (punkte.empty()) {
            return;
        }
        m_path.moveTo(Moved(punkte.front().punkt));
        for (std::size_t i = 1; i < punkte.size(); ++i) {
            AddSegment(punkte[i - 1], punkte[i]);
        }
        if (polyline.bGeschlossen) {
            AddSegment(punkte.back(), punkte.front());
            m_path.closeSubpath();
        }
    }

private:
    QPointF Moved(const CDxfPoint& point) const
    {
        return {point.x - m_basis.x, point.y - m_basis.y};
    }

    static QRectF SquareAround(const QPointF& mitte, double radius)
    {
        return {mitte.x() - radius, mitte.y() - radius, 2.0 * radius, 2.0 * radius};
    }

    /// The toolkit counts angles clockwise where y points upwards.
    void AddArc(const QPointF& mitte, double radius, double start, double sweep) const
    {
        m_path.arcTo(SquareAround(mitte, radius), -start, -sweep);
    }

    void AddSegment(const CDxfVertex& from, const CDxfVertex& to) const
    {
        const QPointF a = Moved(from.punkt);
        const QPointF b = Moved(to.punkt);
        const double half = std::hypot(b.x() - a.x(), b.y() - a.y()) / 2.0;
        if (std::fabs(from.dBulge) < kLeastBulge || half == 0.0) {
            m_path.lineTo(b);
            return;
        }
        const double sweep = 4.0 * std::atan(from.dBulge);
        const double height = half / std::tan(sweep / 2.0);
        const QPointF along = (b - a) / (2.0 * half);
        const QPointF mitte = (a + b) / 2.0 + QPointF(-along.y(), along.x()) * height;
        const double start = std::atan2(a.y() - mitte.y(), a.x() - mitte.x());
        AddArc(mitte, std::hypot(half, height), start / kRadian, sweep / kRadian);
    }

    QPainterPath& m_path;
    CDxfPoint m_basis;
};

COLORREF ColorOf(const CLayerColors& layers, const CDxfEntity& entity)
{
    return PaperColorFromIndex(entity.nColor == kColorByLayer ? layers.Of(entity.strLayer)
                                                              : entity.nColor);
}

QPainterPath& PathOf(std::vector<CColorPath>& paths, COLORREF color)
{
    const auto found = std::ranges::find(paths, color, &CColorPath::color);
    if (found != paths.end()) {
        return found->path;
    }
    paths.push_back({color, {}});
    return paths.back().path;
}

} // namespace

std::vector<CColorPath> MakeBlockPaths(const CLayerColors& layers, const CDxfBlock& block)
{
    std::vector<CColorPath> paths;
    for (const CDxfEntity& entity : block.entities) {
        QPainterPath& path = PathOf(paths, ColorOf(layers, entity));
        std::visit(CPathMaker(path, block.basis), entity.shape);
    }
    return paths;
}

QRectF BoundsOf(const std::vector<CColorPath>& paths)
{
    // A rectangle's own union leaves out one without an area, such as that of a level line.
    bool isFirst = true;
    double left = 0.0, right = 0.0, low = 0.0, high = 0.0;
    for (const CColorPath& part : paths) {
        if (part.path.isEmpty()) {
            continue;
        }
        const QRectF bounds = part.path.boundingRect();
        left = isFirst ? bounds.left() : std::min(left, bounds.left());
        right = isFirst ? bounds.right() : std::max(right, bounds.right());
        low = isFirst ? bounds.top() : std::min(low, bounds.top());
        high = isFirst ? bounds.bottom() : std::max(high, bounds.bottom());
        isFirst = false;
    }
    return {QPointF(left, low), QPointF(right, high)};
}

QTransform PlaceInPlan(const QRectF& bounds, const QPointF& middle, double degrees, double length,
                       double depth)
{
    const auto stretch = [](double wanted, double given) {
        return given > 0.0 ? wanted / given : 1.0;
    };
    QTransform transform;
    transform.translate(middle.x(), middle.y());
    transform.rotate(degrees);
    transform.scale(stretch(length, bounds.width()), stretch(depth, bounds.height()));
    transform.translate(-bounds.center().x(), -bounds.center().y());
    return transform;
}

} // namespace workbench
