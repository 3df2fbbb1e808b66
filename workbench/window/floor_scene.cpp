#include "workbench/window/floor_scene.h"

#include "workbench/window/plan_geometry.h"
#include "workbench/window/walls_item.h"

#include <QGraphicsView>

#include <algorithm>
#include <utility>

namespace workbench {

namespace {

const QColor kMarkColor(0, 92, 200);
const QColor kHaloColor(255, 255, 255);
const QColor kBandFill(0, 92, 200, 34);
const QColor kBandColor(0, 92, 200);

/// In pixels.
constexpr double kMarkPen = 3.0;
constexpr double kHaloPen = 5.0;
constexpr double kRadiatorGap = 3.5;
constexpr int kViewMargin = 40;

/// Fills the lines of a frame, `width` wide. Thousands of strokes would be too slow.
void FillFrame(QPainter& painter, const QRectF& frame, double width, const QColor& color)
{
    const double half = width / 2;
    const QRectF outer = frame.adjusted(-half, -half, half, half);
    const QSizeF level(outer.width(), width);
    const QSizeF upright(width, outer.height());
    painter.fillRect(QRectF(outer.topLeft(), level), color);
    painter.fillRect(QRectF(outer.topLeft(), upright), color);
    painter.fillRect(QRectF(outer.bottomLeft() - QPointF(0.0, width), level), color);
    painter.fillRect(QRectF(outer.topRight() - QPointF(width, 0.0), upright), color);
}

/// Paints a frame that stands out from whatever is below it.
void PaintFrame(QPainter& painter, const QRectF& frame, double scale)
{
    FillFrame(painter, frame, kHaloPen / scale, kHaloColor);
    FillFrame(painter, frame, kMarkPen / scale, kMarkColor);
}

} // namespace

CFloorScene::CFloorScene(QObject* parent) : QGraphicsScene(parent), m_pWalls(new CWallsItem)
{
    addItem(m_pWalls);
}

CFloorScene::~CFloorScene() = default;

void CFloorScene::SetBlocks(const CDxfDrawing& radiators, const CBlockLibrary* valves)
{
    m_blocks = CPlanBlocks(radiators, valves);
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        m_items[i]->SetRoom(m_building, {m_nFloor, i}, m_blocks);
    }
}

void CFloorScene::ShowFloor(const CBuilding& building, std::size_t floor)
{
    const auto stays = [&](const CRoomRef& room) {
        return floor == m_nFloor && Has(room) && IsSameRoom(building, m_building, room);
    };
    CPlanMarks marks = m_marks;
    std::erase_if(marks.rooms, [&](const CRoomRef& room) { return !stays(room); });
    std::erase_if(marks.radiators, [&](const CRadiatorRef& ref) { return !stays(ref.room); });
    const auto current = m_current && stays(*m_current) ? m_current : std::nullopt;
    m_building = building;
    m_nFloor = floor;
    UpdateItems();
    SetCurrent(current);
    Mark(std::move(marks));
}

void CFloorScene::UpdateItems()
{
    static const std::vector<std::shared_ptr<const CRoom>> kNoRooms;
    const auto& rooms =
        m_nFloor < m_building.floors.size() ? m_building.floors[m_nFloor].rooms : kNoRooms;
    while (m_items.size() > rooms.size()) {
        delete m_items.back();
        m_items.pop_back();
    }
    for (std::size_t i = 0; i < rooms.size(); ++i) {
        const CRoomRef ref{m_nFloor, i};
        if (i == m_items.size()) {
            m_items.push_back(new CRoomItem(m_options, m_building, ref, m_blocks));
            addItem(m_items.back());
        } else if (m_items[i]->GetRoom() != rooms[i] ||
                   m_items[i]->GetCoverage() != CoverageOf(m_building, *rooms[i])) {
            m_items[i]->SetRoom(m_building, ref, m_blocks);
        }
    }
    m_pWalls->SetRooms(rooms);
}

void CFloorScene::ShowConnections(bool show)
{
    m_options.bConnections = show;
    update();
}

std::vector<CRadiatorRef> CFloorScene::GetMarkedRadiators() const
{
    return {m_marks.radiators.begin(), m_marks.radiators.end()};
}

std::vector<CRoomRef> CFloorScene::GetMarkedRooms() const
{
    return {m_marks.rooms.begin(), m_marks.rooms.end()};
}

void CFloorScene::MarkRadiators(const std::vector<CRadiatorRef>& radiators)
{
    SetCurrent(radiators.empty() ? m_current : radiators.front().room);
    Mark({{}, {radiators.begin(), radiators.end()}});
}

void CFloorScene::MarkRooms(const std::vector<CRoomRef>& rooms)
{
    SetCurrent(rooms.empty() ? m_current : rooms.front());
    Mark({{rooms.begin(), rooms.end()}, {}});
}

QRectF CFloorScene::BoundsOf(const CRoomRef& room) const
{
    return Has(room) ? ItemOf(room).GetOutline() : QRectF();
}

bool CFloorScene::Has(const CRoomRef& room) const
{
    return room.nFloor == m_nFloor && Exists(m_building, room);
}

bool CFloorScene::Has(const CRadiatorRef& radiator) const
{
    return radiator.room.nFloor == m_nFloor && Exists(m_building, radiator);
}

void CFloorScene::Mark(CPlanMarks marks)
{
    std::erase_if(marks.rooms, [&](const CRoomRef& room) { return !Has(room); });
    std::erase_if(marks.radiators, [&](const CRadiatorRef& ref) { return !Has(ref); });
    if (marks == m_marks) {
        return;
    }
    m_marks = std::move(marks);
    update();
    emit MarkChanged();
}

void CFloorScene::SetCurrent(std::optional<CRoomRef> room)
{
    m_current = room && Has(*room) ? room : std::nullopt;
}

void CFloorScene::ShowInViews(const CRoomRef& room)
{
    for (QGraphicsView* const view : views()) {
        view->ensureVisible(BoundsOf(room), kViewMargin, kViewMargin);
    }
}

void CFloorScene::drawForeground(QPainter* painter, const QRectF& rect)
{
    painter->setRenderHint(QPainter::Antialiasing, false);
    PaintMarks(*painter, rect, ScaleOf(*painter));
    if (m_band) {
        QPen pen = PixelPen(kBandColor);
        pen.setStyle(Qt::DashLine);
        painter->setPen(pen);
        painter->setBrush(kBandFill);
        painter->drawRect(*m_band);
    }
}

void CFloorScene::PaintMarks(QPainter& painter, const QRectF& exposed, double scale) const
{
    for (const CRoomRef& room : m_marks.rooms) {
        const QRectF& outline = ItemOf(room).GetOutline();
        if (outline.intersects(exposed)) {
            PaintFrame(painter, outline, scale);
        }
    }
    const double gap = kRadiatorGap / scale;
    for (const CRadiatorRef& radiator : m_marks.radiators) {
        const QRectF& outline = ItemOf(radiator.room).OutlineOf(radiator.nRadiator);
        if (outline.intersects(exposed)) {
            PaintFrame(painter, outline.adjusted(-gap, -gap, gap, gap), scale);
        }
    }
}

} // namespace workbench
