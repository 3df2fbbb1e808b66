#include "workbench/drawing/sample_plan.h"

#include "workbench/drawing/block_path.h"
#include "workbench/drawing/hairline_item.h"

#include <QBrush>

namespace workbench {

namespace {

constexpr double kSamplePenWidth = 1.2;

const QColor kWallColor(200, 200, 200);
const QColor kWallEdge(90, 90, 90);
const QColor kGlassColor(225, 240, 250);

QRectF RectBetween(const CDxfPoint& from, const CDxfPoint& to)
{
    return QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y)).normalized();
}

/// The radiator's block, or a rectangle in its place.
std::vector<CColorPath> PathsOf(const CDxfDrawing& blocks, const CString& name)
{
    if (const CDxfBlock* const block = FindBlock(blocks, name)) {
        return MakeBlockPaths(CLayerColors(blocks.layers), *block);
    }
    std::vector<CColorPath> paths(1);
    paths.front().path.addRect(-0.5, -0.5, 1.0, 1.0);
    return paths;
}

} // namespace

void CSamplePlan::AddWall(const CDxfPoint& from, const CDxfPoint& to)
{
    QPainterPath outline;
    outline.addRect(RectBetween(from, to));
    Add(outline, kWallEdge, kWallColor);
}

void CSamplePlan::AddWindow(const CDxfPoint& from, const CDxfPoint& to)
{
    const QRectF frame = RectBetween(from, to);
    const QPointF middle = frame.center();
    const bool liesLevel = frame.width() > frame.height();
    QPainterPath outline;
    outline.addRect(frame);
    outline.moveTo(liesLevel ? QPointF(frame.left(), middle.y())
                             : QPointF(middle.x(), frame.top()));
    outline.lineTo(liesLevel ? QPointF(frame.right(), middle.y())
                             : QPointF(middle.x(), frame.bottom()));
    Add(outline, kWallEdge, kGlassColor);
}

void CSamplePlan::AddRadiator(const CDxfDrawing& blocks, const CPlanRadiator& radiator)
{
    const std::vector<CColorPath> paths = PathsOf(blocks, radiator.strBlock);
    const QTransform place = PlaceInPlan(BoundsOf(paths), {radiator.dX, radiator.dY},
                                         radiator.dWinkel, radiator.dLaenge, radiator.dTiefe);
    for (const CColorPath& part : paths) {
        const QColor color(GetRValue(part.color), GetGValue(part.color), GetBValue(part.color));
        Add(place.map(part.path), color, Qt::NoBrush);
    }
    m_records.Add(radiator);
}

void CSamplePlan::Add(const QPainterPath& path, const QColor& pen, const QBrush& brush)
{
    auto* const item = new CHairlineItem(path, pen, kSamplePenWidth);
    item->setBrush(brush);
    m_scene.addItem(item);
}

void FillSampleRoom(CSamplePlan& plan, const CDxfDrawing& blocks)
{
    // 5 by 4 metres inside: two windows to the south, one to the west, the door to the east.
    plan.AddWall({-0.3, -0.3}, {5.1, 0.0});
    plan.AddWall({-0.3, 4.0}, {5.1, 4.1});
    plan.AddWall({-0.3, 0.0}, {0.0, 4.0});
    plan.AddWall({5.0, 0.0}, {5.1, 2.7});
    plan.AddWall({5.0, 3.6}, {5.1, 4.0});
    plan.AddWindow({0.7, -0.3}, {1.9, 0.0});
    plan.AddWindow({3.0, -0.3}, {4.2, 0.0});
    plan.AddWindow({-0.3, 1.4}, {0.0, 2.6});

    plan.AddRadiator(blocks, {.strBlock = L"RAD_PIASTRA_22_PIANTA",
                              .dX = 1.3,
                              .dY = 0.09,
                              .dLaenge = 1.2,
                              .dTiefe = 0.102,
                              .strVorlauf = kStandardVorlauf,
                              .strRuecklauf = kStandardRuecklauf});
    plan.AddRadiator(blocks, {.strBlock = L"RAD_PIASTRA_22_PIANTA",
                              .dX = 3.6,
                              .dY = 0.09,
                              .dLaenge = 1.0,
                              .dTiefe = 0.102,
                              .strVorlauf = kStandardVorlauf,
                              .strRuecklauf = kStandardRuecklauf});
    plan.AddRadiator(blocks, {.strBlock = L"RAD_TUBOLARE_PIANTA",
                              .dX = 0.11,
                              .dY = 2.0,
                              .dWinkel = 270.0,
                              .dLaenge = 0.9,
                              .dTiefe = 0.139,
                              .dHoehe = 0.9,
                              .strVorlauf = kStandardVorlauf,
                              .strRuecklauf = kStandardRuecklauf});
}

} // namespace workbench
