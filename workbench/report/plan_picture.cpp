#include "workbench/report/plan_picture.h"

#include "workbench/drawing/block_path.h"
#include "workbench/drawing/color_index.h"
#include "workbench/plan/placement.h"
#include "workbench/report/plan_drawing.h"
#include "workbench/report/plan_label.h"
#include "workbench/report/plan_legend.h"

#include <QPen>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace workbench {

namespace {

constexpr int kScales[] = {20, 50, 100, 200, 250, 500, 1000, 2000, 5000};

/// Up to this scale the lines of a radiator's block can be told apart.
constexpr int kLargestBlockScale = 100;

/// Up to this scale radiators have their numbers.
constexpr int kLargestNumberScale = 250;

/// At the foot of the area for the bar of the scale and the colours' meaning.
constexpr double kPictureFoot = 12.0;

constexpr double kHairline = 0.06;
constexpr double kOutline = 0.13;

/// Between a radiator and its number.
constexpr double kNumberGap = 0.3;

const QColor kWallFill(150, 157, 166);
const QColor kWallEdge(70, 76, 84);

QColor ColorFrom(COLORREF color)
{
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

QRectF MetresOf(const CFloorRect& rect)
{
    return {rect.x / 1000.0, rect.y / 1000.0, rect.breite / 1000.0, rect.tiefe / 1000.0};
}

/// Paints one plan on one sheet.
class CPlanPainter
{
public:
    CPlanPainter(CReportSheet& sheet, const QRectF& bounds, const QPointF& middle, int scale)
        : m_sheet(sheet), m_painter(sheet.GetPainter()), m_nScale(scale)
    {
        const double metre = 1000.0 / scale * CReportSheet::kUnits;
        m_toPaper.translate(middle.x() * CReportSheet::kUnits, middle.y() * CReportSheet::kUnits);
        m_toPaper.scale(metre, -metre);
        m_toPaper.translate(-bounds.center().x(), -bounds.center().y());
    }

    void PaintWalls(const QPainterPath& walls)
    {
        m_painter.fillPath(m_toPaper.map(walls), kWallFill);
        Stroke(walls, kWallEdge, OutlineWidth());
    }

    void PaintRoom(const CRoom& room, Coverage coverage)
    {
        QPainterPath floor;
        floor.addRect(MetresOf(room.grundriss));
        m_painter.fillPath(m_toPaper.map(floor), PrintFillOf(coverage));
        Stroke(floor, kWallEdge, OutlineWidth());
    }

    void PaintWindows(const CDxfDrawing& drawing)
    {
        CDxfBlock windows;
        std::ranges::copy_if(
            drawing.entities, std::back_inserter(windows.entities),
            [](const CDxfEntity& entity) { return entity.strLayer == kLayerWindows; });
        for (const CColorPath& part : MakeBlockPaths(CLayerColors(drawing.layers), windows)) {
            m_painter.fillPath(m_toPaper.map(part.path), Qt::white);
            Stroke(part.path, ColorFrom(part.color), kHairline);
        }
    }

    void PaintInserts(const CDxfDrawing& drawing)
    {
        for (const CDxfInsert& insert : drawing.inserts) {
            PaintInsert(drawing, insert);
        }
    }

    void PaintLabel(const CRoom& room, Coverage coverage)
    {
        PaintRoomLabel(m_sheet, OnPaper(FreeFloor(room)), room, coverage);
    }

    /// On the radiator's side towards the room, to be read from below or from the right.
    void PaintNumber(const CRoom& room, const CPlacedRadiator& radiator, const QString& number)
    {
        if (m_nScale > kLargestNumberScale) {
            return;
        }
        const CRadiatorPose pose = PoseOf(room, radiator);
        const bool isTurned = pose.dWinkel >= 180.0;
        const double away = 500.0 * pose.dTiefe / m_nScale + kNumberGap + kNumberHeight / 2;
        m_painter.save();
        m_painter.translate(m_toPaper.map(QPointF(pose.dX, pose.dY)));
        m_painter.rotate(isTurned ? 180.0 - pose.dWinkel : -pose.dWinkel);
        PaintRadiatorNumber(m_sheet, number, radiator.daten.Leistung, SpaceAlong(room, pose),
                            isTurned ? away : -away);
        m_painter.restore();
    }

private:
    double OutlineWidth() const { return m_nScale > kLargestNumberScale ? kHairline : kOutline; }

    /// What a text beside the radiator may take along its wall: to the corners, but no further than
    /// half way to where others stand. Texts run eastwards or northwards.
    CSpaceAlong SpaceAlong(const CRoom& room, const CRadiatorPose& pose) const
    {
        const QRectF floor = MetresOf(room.grundriss);
        const bool isLevel = std::fmod(pose.dWinkel, 180.0) == 0.0;
        const double at = isLevel ? pose.dX : pose.dY;
        double before = at - (isLevel ? floor.left() : floor.top());
        double behind = (isLevel ? floor.right() : floor.bottom()) - at;
        for (const CPlacedRadiator& other : room.heizkoerper) {
            const CRadiatorPose standing = PoseOf(room, other);
            const double half = ((isLevel ? standing.dX : standing.dY) - at) / 2;
            if (standing.dWinkel == pose.dWinkel && half != 0.0) {
                double& side = half > 0.0 ? behind : before;
                side = std::min(side, std::fabs(half));
            }
        }
        return {1000.0 * before / m_nScale, 1000.0 * behind / m_nScale};
    }

    void Stroke(const QPainterPath& path, const QColor& color, double width)
    {
        m_painter.setPen(
            QPen(color, width * CReportSheet::kUnits, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPath(m_toPaper.map(path));
    }

    QRectF OnPaper(const QRectF& metres) const
    {
        const QRectF units = m_toPaper.mapRect(metres);
        return {units.topLeft() / CReportSheet::kUnits, units.size() / CReportSheet::kUnits};
    }

    void PaintInsert(const CDxfDrawing& drawing, const CDxfInsert& insert)
    {
        const QColor own = ColorFrom(PaperColorFromIndex(
            insert.nColor == kColorByLayer ? FindLayerColor(drawing.layers, insert.strLayer)
                                           : insert.nColor));
        const std::vector<CColorPath>& parts = PathsOf(drawing, insert.strBlock);
        QTransform place;
        place.translate(insert.punkt.x, insert.punkt.y);
        place.rotate(insert.dWinkel);
        place.scale(insert.dSkalaX, insert.dSkalaY);
        const bool isRadiator = !insert.attribute.empty();
        const bool isBar = m_nScale > kLargestBlockScale;
        if (isRadiator) {
            QPainterPath body;
            body.addPolygon(place.map(QPolygonF(BoundsOf(parts))));
            m_painter.fillPath(m_toPaper.map(body), isBar ? own : QColor(Qt::white));
        }
        if (isBar) {
            return;
        }
        for (const CColorPath& part : parts) {
            const bool isOwn = part.color == PaperColorFromIndex(kColorByBlock);
            Stroke(place.map(part.path), isOwn ? own : ColorFrom(part.color), kHairline);
        }
    }

    const std::vector<CColorPath>& PathsOf(const CDxfDrawing& drawing, const CString& name)
    {
        const auto [found, isNew] = m_paths.try_emplace(name);
        if (isNew) {
            found->second = MakeBlockPaths(CLayerColors(drawing.layers), *FindBlock(drawing, name));
        }
        return found->second;
    }

    /// The room without what its radiators and their numbers take along the walls.
    QRectF FreeFloor(const CRoom& room) const
    {
        QRectF free = MetresOf(room.grundriss);
        const double number = (kNumberGap + kNumberHeight) * m_nScale / 1000.0;
        for (const CPlacedRadiator& radiator : room.heizkoerper) {
            const double band = radiator.abstandWand + radiator.daten.Tiefe / 1000.0 + number;
            switch (room.plaetze.at(radiator.nPlatz).wand) {
            case Wall::sued:
                free.setTop(free.top() + band);
                break;
            case Wall::ost:
                free.setRight(free.right() - band);
                break;
            case Wall::nord:
                free.setBottom(free.bottom() - band);
                break;
            case Wall::west:
                free.setLeft(free.left() + band);
                break;
            }
        }
        return free;
    }

    CReportSheet& m_sheet;
    QPainter& m_painter;
    int m_nScale;
    /// From metres with y upwards to the painter's units.
    QTransform m_toPaper;
    std::map<CString, std::vector<CColorPath>> m_paths;
};

} // namespace

CPlanPicture::CPlanPicture(const CBuilding& building, std::size_t floor,
                           const CDxfDrawing& radiators, const CBlockLibrary* valves)
    : m_building(building), m_floor(building.floors[floor]), m_nFloor(floor),
      m_drawing(MakeFloorDrawing(building, floor, radiators, valves)), m_walls(WalledArea(m_floor))
{
}

int CPlanPicture::GetScale(const QSizeF& area) const
{
    const QSizeF metres = m_walls.boundingRect().size();
    for (const int scale : kScales) {
        if (1000.0 * metres.width() / scale <= area.width() &&
            1000.0 * metres.height() / scale <= area.height() - kPictureFoot) {
            return scale;
        }
    }
    return *std::rbegin(kScales);
}

void CPlanPicture::Paint(CReportSheet& sheet, const QRectF& area, int scale) const
{
    const QRectF place = area.adjusted(0.0, 0.0, 0.0, -kPictureFoot);
    CPlanPainter painter(sheet, m_walls.boundingRect(), place.center(), scale);
    painter.PaintWalls(m_walls);
    for (const auto& room : m_floor.rooms) {
        painter.PaintRoom(*room, CoverageOf(m_building, *room));
    }
    painter.PaintWindows(m_drawing);
    painter.PaintInserts(m_drawing);
    std::size_t number = 0;
    std::set<Coverage> shown;
    for (const auto& room : m_floor.rooms) {
        const Coverage coverage = CoverageOf(m_building, *room);
        shown.insert(coverage);
        painter.PaintLabel(*room, coverage);
        for (const CPlacedRadiator& radiator : room->heizkoerper) {
            painter.PaintNumber(*room, radiator, RadiatorNumber(m_nFloor, number++));
        }
    }
    PaintScaleBar(sheet, {area.left() + 2.0, place.bottom() + 3.0}, scale);
    PaintLegend(sheet, {area.right(), place.bottom() + 3.0}, shown);
    PaintNorth(sheet, {area.right() - 5.0, area.top() + 1.0});
}

QString RadiatorNumber(std::size_t floor, std::size_t radiator)
{
    return QString("%1.%2").arg(floor + 1).arg(radiator + 1, 2, 10, QChar('0'));
}

} // namespace workbench
