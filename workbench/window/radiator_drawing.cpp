#include "workbench/window/radiator_drawing.h"

#include "workbench/drawing/block_path.h"
#include "workbench/drawing/color_index.h"
#include "workbench/drawing/connection_marks.h"
#include "workbench/plan/radiator_list.h"
#include "workbench/report/valve_place.h"
#include "workbench/window/fitted_text.h"
#include "workbench/window/pixel_painting.h"
#include "workbench/window/plan_geometry.h"
#include "workbench/window/plan_texts.h"

#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

/// Pixels a metre from which on lines of blocks can be told apart.
constexpr double kBlockScale = 45.0;
/// The same for connection points and valves.
constexpr double kConnectionScale = 70.0;

/// Of a connection point that has a valve, in metres.
constexpr double kDotRadius = 0.012;

/// A radiator never shows thinner than this, in pixels.
constexpr double kLeastDepth = 2.0;

constexpr double kLabelHeight = 0.11;
constexpr int kLeastLabel = 9;
constexpr int kMostLabel = 13;
/// Space for the frame of a marked radiator.
constexpr double kLabelGap = 7.0;
/// Height of its line in multiples of the font's size.
constexpr double kLabelLine = 1.3;
/// A label may be longer than the radiator, but not so long that it reaches its neighbour's.
constexpr double kLabelReach = 1.5;
/// Pixels of a radiator from which on it gets a label.
constexpr double kLeastLabelledLength = 60.0;

/// How far the paper shines through the layer's colour in a radiator's body.
constexpr double kPaperShare = 0.86;

constexpr double kRadian = std::numbers::pi / 180.0;

const QColor kLabelColor(60, 68, 78);

QColor LayerColor(int index)
{
    const COLORREF color = PaperColorFromIndex(index);
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

QColor OnPaper(const QColor& color)
{
    const auto mix = [](int part) {
        return static_cast<int>(std::lround(255 * kPaperShare + part * (1 - kPaperShare)));
    };
    return {mix(color.red()), mix(color.green()), mix(color.blue())};
}

int LabelPixels(double scale)
{
    return std::clamp(static_cast<int>(kLabelHeight * scale), kLeastLabel, kMostLabel);
}

QTransform UnitPlace(const CRadiatorPose& pose)
{
    QTransform place;
    place.translate(pose.dX, pose.dY);
    place.rotate(pose.dWinkel);
    return place;
}

QRectF OutlineOf(const CRadiatorPose& pose)
{
    return UnitPlace(pose).mapRect(
        QRectF(-pose.dLaenge / 2, -pose.dTiefe / 2, pose.dLaenge, pose.dTiefe));
}

/// The outline, made at least as thick as what can be seen.
QRectF BarOf(const QRectF& outline, double scale)
{
    const double least = kLeastDepth / scale;
    const double wider = std::max(0.0, least - outline.width()) / 2;
    const double higher = std::max(0.0, least - outline.height()) / 2;
    return outline.adjusted(-wider, -higher, wider, higher);
}

void PaintTree(QPainter& painter, QGraphicsItem& item)
{
    const QStyleOptionGraphicsItem option;
    item.paint(&painter, &option, nullptr);
    for (QGraphicsItem* const child : item.childItems()) {
        PaintTree(painter, *child);
    }
}

QRectF BoundsOfTree(const QGraphicsItem& item)
{
    return item.boundingRect() | item.childrenBoundingRect();
}

} // namespace

CRadiatorDrawing::CRadiatorDrawing(const CBuilding& building, const CRadiatorRef& ref,
                                   const CPlanBlocks& blocks)
    : m_pose(PoseOf(RoomOf(building, ref.room), RadiatorOf(building, ref))),
      m_outline(OutlineOf(m_pose)), m_bounds(m_outline)
{
    const CPlacedRadiator& radiator = RadiatorOf(building, ref);
    m_farbe = LayerColor(radiator.nFarbe);
    m_strLabel = ShortLabelOf(radiator);
    m_block = blocks.FindRadiator(radiator.strBlock);
    if (m_block) {
        m_place = PlaceInPlan(m_block->bounds, {m_pose.dX, m_pose.dY}, m_pose.dWinkel,
                              m_pose.dLaenge, m_pose.dTiefe);
    }
    if (!radiator.anschluss.AnschlussAN.empty() || !radiator.anschluss.AnschlussRI.empty()) {
        AddConnections(building, ref, blocks);
        AddValves(building, ref, blocks);
    }
}

void CRadiatorDrawing::AddConnections(const CBuilding& building, const CRadiatorRef& ref,
                                      const CPlanBlocks& blocks)
{
    const ConnValues& anschluss = RadiatorOf(building, ref).anschluss;
    CRadiatorList list(building, {ref});
    for (const CConnectionMark& mark : ConnectionMarksOf(*list.GetList())) {
        // A valve's graphic shows the pipe itself.
        if (blocks.FindValve(mark.bRuecklauf ? anschluss.GrafikRI : anschluss.GrafikAN)) {
            m_dots.push_back({mark.punkt, mark.farbe});
            continue;
        }
        m_symbols.emplace_back(MakeConnectionSymbol(mark));
        m_bounds |= BoundsOfTree(*m_symbols.back());
    }
}

void CRadiatorDrawing::AddValves(const CBuilding& building, const CRadiatorRef& ref,
                                 const CPlanBlocks& blocks)
{
    for (const CValvePlace& valve : ValvePlacesOf(building, ref)) {
        if (auto block = blocks.FindValve(valve.strBlock)) {
            QTransform place;
            place.translate(valve.dX, valve.dY);
            place.rotate(valve.dWinkel + TurnOfBlock(block->bounds));
            m_bounds |= place.mapRect(block->bounds);
            m_valves.push_back({std::move(block), place});
        }
    }
}

void CRadiatorDrawing::Paint(QPainter& painter, double scale, bool connections) const
{
    if (scale < kBlockScale) {
        painter.fillRect(BarOf(m_outline, scale), m_farbe);
        return;
    }
    PaintBlock(painter);
    if (connections && scale >= kConnectionScale) {
        PaintConnections(painter);
    }
}

void CRadiatorDrawing::PaintBlock(QPainter& painter) const
{
    painter.fillRect(m_outline, OnPaper(m_farbe));
    painter.setBrush(Qt::NoBrush);
    if (!m_block) {
        painter.setPen(PixelPen(m_farbe));
        painter.drawRect(m_outline);
        return;
    }
    const QTransform before = painter.worldTransform();
    painter.setWorldTransform(m_place, true);
    for (const CPlanBlock::CPart& part : m_block->parts) {
        painter.setPen(PixelPen(part.bStandard ? m_farbe : part.farbe));
        painter.drawPath(part.path);
    }
    painter.setWorldTransform(before);
}

void CRadiatorDrawing::PaintConnections(QPainter& painter) const
{
    for (const auto& symbol : m_symbols) {
        PaintTree(painter, *symbol);
    }
    const QTransform before = painter.worldTransform();
    painter.setBrush(Qt::NoBrush);
    for (const CValve& valve : m_valves) {
        painter.setWorldTransform(valve.place, true);
        for (const CPlanBlock::CPart& part : valve.block->parts) {
            painter.setPen(PixelPen(part.farbe));
            painter.drawPath(part.path);
        }
        painter.setWorldTransform(before);
    }
    painter.setPen(Qt::NoPen);
    for (const CDot& dot : m_dots) {
        painter.setBrush(dot.farbe);
        painter.drawEllipse(dot.punkt, kDotRadius, kDotRadius);
    }
}

bool CRadiatorDrawing::HasLabel(double scale) const
{
    return scale >= kBlockScale && m_pose.dLaenge * scale >= kLeastLabelledLength;
}

QPointF CRadiatorDrawing::Inward() const
{
    // The room lies on the left of the length.
    return {-std::sin(m_pose.dWinkel * kRadian), std::cos(m_pose.dWinkel * kRadian)};
}

QRectF CRadiatorDrawing::TakenArea(double scale) const
{
    const QRectF drawn = scale >= kConnectionScale ? m_bounds : m_outline;
    if (!HasLabel(scale)) {
        return drawn;
    }
    const double depth = (kLabelGap + kLabelLine * LabelPixels(scale)) / scale;
    return drawn | m_outline.translated(Inward() * depth);
}

void CRadiatorDrawing::PaintLabel(QPainter& painter, double scale) const
{
    if (!HasLabel(scale)) {
        return;
    }
    const double length = m_pose.dLaenge * scale;
    const auto text =
        ShrinkText(m_strLabel, kLabelReach * length, LabelPixels(scale), kLeastLabel, false);
    if (!text) {
        return;
    }
    const QPointF inward = Inward();
    const CPixelPainting inPixels(painter);
    const QPointF edge = inPixels.Map(QPointF(m_pose.dX, m_pose.dY) + inward * (m_pose.dTiefe / 2));
    const double away = kLabelGap + 0.5 * text->font.pixelSize();
    painter.translate(edge + QPointF(inward.x(), -inward.y()) * away);
    if (m_outline.height() > m_outline.width()) {
        painter.rotate(-90.0);
    }
    painter.setFont(text->font);
    painter.setPen(kLabelColor);
    painter.drawText(QPointF(-text->dWidth / 2, 0.36 * text->font.pixelSize()), text->strText);
}

} // namespace workbench
