#include "tools/make_drawings_sketch.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace workbench {

namespace {

/// Tangent of a quarter of a right angle, for corners that run counter-clockwise.
const double kQuarterBulge = std::tan(std::numbers::pi / 8.0);

CDxfPoint Mirror(const CDxfPoint& point)
{
    // 0 has no mirror image; as -0 it would be written with a sign.
    return {point.x == 0.0 ? 0.0 : -point.x, point.y};
}

struct CMirror
{
    CDxfShape operator()(const CDxfLine& line) const
    {
        return CDxfLine{Mirror(line.von), Mirror(line.bis)};
    }

    CDxfShape operator()(const CDxfCircle& circle) const
    {
        return CDxfCircle{Mirror(circle.mitte), circle.dRadius};
    }

    CDxfShape operator()(const CDxfArc& arc) const
    {
        return CDxfArc{Mirror(arc.mitte), arc.dRadius, 180.0 - arc.dBis, 180.0 - arc.dVon};
    }

    CDxfShape operator()(CDxfPolyline polyline) const
    {
        for (CDxfVertex& vertex : polyline.punkte) {
            vertex.punkt = Mirror(vertex.punkt);
            vertex.dBulge = vertex.dBulge == 0.0 ? 0.0 : -vertex.dBulge;
        }
        return polyline;
    }
};

} // namespace

CBlockSketch::CBlockSketch(const wchar_t* name, const wchar_t* layer) : m_layer(layer)
{
    m_block.strName = name;
}

void CBlockSketch::SetLayer(const wchar_t* layer)
{
    m_layer = layer;
}

void CBlockSketch::Line(const CDxfPoint& from, const CDxfPoint& to)
{
    Add(CDxfLine{from, to});
}

void CBlockSketch::Circle(const CDxfPoint& center, double radius)
{
    Add(CDxfCircle{center, radius});
}

void CBlockSketch::Arc(const CDxfPoint& center, double radius, double start, double end)
{
    Add(CDxfArc{center, radius, start, end});
}

void CBlockSketch::Polygon(std::initializer_list<CDxfPoint> corners)
{
    CDxfPolyline polyline{{}, true};
    for (const CDxfPoint& corner : corners) {
        polyline.punkte.push_back({corner, 0.0});
    }
    Add(std::move(polyline));
}

void CBlockSketch::Stroke(const std::vector<CDxfPoint>& points)
{
    CDxfPolyline polyline;
    for (const CDxfPoint& point : points) {
        polyline.punkte.push_back({point, 0.0});
    }
    Add(std::move(polyline));
}

void CBlockSketch::Rect(const CDxfPoint& low, const CDxfPoint& high)
{
    Polygon({low, {high.x, low.y}, high, {low.x, high.y}});
}

void CBlockSketch::RoundRect(const CDxfPoint& low, const CDxfPoint& high, double radius)
{
    const double r = radius;
    Add(CDxfPolyline{{{{low.x + r, low.y}, 0.0},
                      {{high.x - r, low.y}, kQuarterBulge},
                      {{high.x, low.y + r}, 0.0},
                      {{high.x, high.y - r}, kQuarterBulge},
                      {{high.x - r, high.y}, 0.0},
                      {{low.x + r, high.y}, kQuarterBulge},
                      {{low.x, high.y - r}, 0.0},
                      {{low.x, low.y + r}, kQuarterBulge}},
                     true});
}

CDxfBlock CBlockSketch::Mirrored(const wchar_t* name) const
{
    CDxfBlock mirrored{name, Mirror(m_block.basis), {}};
    for (const CDxfEntity& entity : m_block.entities) {
        mirrored.entities.push_back(
            {entity.strLayer, entity.nColor, std::visit(CMirror(), entity.shape)});
    }
    return mirrored;
}

void CBlockSketch::Add(CDxfShape shape)
{
    m_block.entities.push_back({m_layer, kColorByLayer, std::move(shape)});
}

} // namespace workbench
