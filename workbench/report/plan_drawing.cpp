#include "workbench/report/plan_drawing.h"

#include "platform/format.h"
#include "workbench/building/user_text.h"
#include "workbench/plan/coverage.h"
#include "workbench/plan/placement.h"
#include "workbench/report/block_collection.h"
#include "workbench/report/valve_place.h"

#include <QRegion>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench {

namespace {

/// Thickness of an outer wall in metres.
constexpr double kWall = 0.3;

constexpr double kPlanTitleHeight = 0.4;
constexpr double kSubtitleHeight = 0.2;
constexpr double kRoomTextHeight = 0.16;
constexpr double kLabelHeight = 0.1;
/// From one base line to the next, in heights of the text.
constexpr double kLineStep = 1.7;
/// Width of a character in heights of the text, on the safe side.
constexpr double kCharacterWidth = 0.8;

/// Between the outer walls of two floors.
constexpr double kFloorGap = 3.0;

/// Places are written to the thousandth of a millimetre.
double Rounded(double metres)
{
    return std::round(metres * 1e6) / 1e6;
}

CDxfPoint At(double x, double y)
{
    return {Rounded(x), Rounded(y)};
}

/// With the plain minus sign: fonts of drawings often lack the true one.
CString Watt(double value)
{
    return FormatFixed(value, 0) + L" W";
}

/// An index that a layer may have.
int LayerColor(int index)
{
    return index >= 1 && index <= 255 ? index : kColorDefault;
}

CString LayerOf(const CPlacedRadiator& radiator)
{
    return radiator.strLayer.empty() ? kLayerRadiators : LayerName(radiator.strLayer);
}

/// Draws floors into a drawing, each moved along x.
class CFloorDrawer
{
public:
    CFloorDrawer(CDxfDrawing& drawing, const CBuilding& building, const CDxfDrawing& radiators,
                 const CBlockLibrary* valves)
        : m_drawing(drawing), m_building(building), m_blocks(drawing, radiators, valves)
    {
        AddLayers();
    }

    void Draw(std::size_t floor, double dx)
    {
        m_dx = dx;
        const CFloor& drawn = m_building.floors[floor];
        DrawWalls(drawn);
        for (std::size_t i = 0; i < drawn.rooms.size(); ++i) {
            DrawRoom({floor, i});
        }
    }

    void DrawTitle(const CFloor& floor, const QRectF& bounds)
    {
        const double left = bounds.left() + m_dx;
        AddText(kLayerTexts, At(left, bounds.bottom() + 1.0), kSubtitleHeight, 0.0, DxfAlign::left,
                m_building.strName + L", " + FormatSystem(m_building.system) + L" °C");
        AddText(kLayerTexts, At(left, bounds.bottom() + 1.0 + 2.0 * kSubtitleHeight),
                kPlanTitleHeight, 0.0, DxfAlign::left, floor.strName);
    }

private:
    /// Those of radiators come first: they have their colours from the plan.
    void AddLayers()
    {
        AddLayer(m_drawing, {L"0", kColorDefault});
        for (const CFloor& floor : m_building.floors) {
            for (const auto& room : floor.rooms) {
                for (const CPlacedRadiator& radiator : room->heizkoerper) {
                    AddLayer(m_drawing, {LayerOf(radiator), LayerColor(radiator.nFarbe)});
                }
            }
        }
        for (const CDxfLayer& layer : {CDxfLayer{kLayerRooms, 8},
                                       {kLayerWalls, kColorDefault},
                                       {kLayerWindows, 152},
                                       {kLayerTexts, kColorDefault},
                                       {kLayerLabels, 8},
                                       {kLayerValves, kColorDefault}}) {
            AddLayer(m_drawing, layer);
        }
    }

    void DrawWalls(const CFloor& floor)
    {
        for (const QPolygonF& polygon : WalledArea(floor).toSubpathPolygons()) {
            CDxfPolyline outline{{}, true};
            for (qsizetype i = 0; i + 1 < polygon.size(); ++i) {
                outline.punkte.push_back({At(polygon[i].x() + m_dx, polygon[i].y()), 0.0});
            }
            m_drawing.entities.push_back({kLayerWalls, kColorByLayer, std::move(outline)});
        }
    }

    void DrawRoom(const CRoomRef& ref)
    {
        const CRoom& room = RoomOf(m_building, ref);
        const CFloorRect& plan = room.grundriss;
        const double left = plan.x / 1000.0 + m_dx;
        const double low = plan.y / 1000.0;
        AddRectangle(kLayerRooms, {left, low},
                     {left + plan.breite / 1000.0, low + plan.tiefe / 1000.0});
        DrawRoomTexts(room);
        for (const CRadiatorPlace& place : room.plaetze) {
            if (place.art == PlaceKind::window) {
                DrawWindow(LineOf(room, place));
            }
        }
        for (std::size_t i = 0; i < room.heizkoerper.size(); ++i) {
            DrawRadiator({ref, i});
        }
    }

    void DrawWindow(const CPlaceLine& line)
    {
        const double length = std::hypot(line.dX2 - line.dX1, line.dY2 - line.dY1);
        // A window of no width has no direction either.
        const double outX = length > 0.0 ? kWall * (line.dY2 - line.dY1) / length : 0.0;
        const double outY = length > 0.0 ? -kWall * (line.dX2 - line.dX1) / length : 0.0;
        const double from = line.dX1 + m_dx;
        const double to = line.dX2 + m_dx;
        AddRectangle(kLayerWindows, {from, line.dY1}, {to + outX, line.dY2 + outY});
        m_drawing.entities.push_back({kLayerWindows, kColorByLayer,
                                      CDxfLine{At(from + outX / 2, line.dY1 + outY / 2),
                                               At(to + outX / 2, line.dY2 + outY / 2)}});
    }

    /// All texts of a room have one height.
    void DrawRoomTexts(const CRoom& room)
    {
        const std::vector<CString> lines = {room.strName, L"Fabbisogno " + Watt(room.bedarf),
                                            L"Coperto " + Watt(CoveredOf(room)),
                                            L"Resto " + Watt(RemainderOf(room))};
        const double height = TextHeightFor(room, lines);
        const CFloorRect& plan = room.grundriss;
        const double x = (plan.x + plan.breite / 2.0) / 1000.0 + m_dx;
        const double middle = (plan.y + plan.tiefe / 2.0) / 1000.0;
        double y = middle + (kLineStep * static_cast<double>(lines.size() - 1) - 1.0) * height / 2;
        for (const CString& line : lines) {
            AddText(kLayerTexts, At(x, y), height, 0.0, DxfAlign::middle, line);
            y -= kLineStep * height;
        }
    }

    /// The usual height, lowered for texts that otherwise would leave the room.
    static double TextHeightFor(const CRoom& room, const std::vector<CString>& lines)
    {
        double height =
            std::min(kRoomTextHeight, room.grundriss.tiefe / 1000.0 /
                                          (kLineStep * static_cast<double>(lines.size())));
        for (const CString& line : lines) {
            const double characters = static_cast<double>(std::max<std::size_t>(line.size(), 1));
            height =
                std::min(height, room.grundriss.breite / 1000.0 / (kCharacterWidth * characters));
        }
        return Rounded(height);
    }

    void DrawRadiator(const CRadiatorRef& ref)
    {
        const CRoom& room = RoomOf(m_building, ref.room);
        const CPlacedRadiator& radiator = RadiatorOf(m_building, ref);
        const CRadiatorPose pose = PoseOf(room, radiator);
        AddRadiator(radiator, pose);
        AddLabel(radiator, pose);
        for (const CValvePlace& valve : ValvePlacesOf(m_building, ref)) {
            if (const CBlockCollection::CTaken* const block = m_blocks.TakeValve(valve.strBlock)) {
                m_drawing.inserts.push_back({kLayerValves, kColorByLayer, block->strName,
                                             At(valve.dX + m_dx, valve.dY), 1.0, 1.0,
                                             Rounded(valve.dWinkel + TurnOfBlock(block->bounds))});
            }
        }
    }

    void AddRadiator(const CPlacedRadiator& radiator, const CRadiatorPose& pose)
    {
        const CBlockCollection::CTaken& block = m_blocks.TakeRadiator(radiator.strBlock);
        const auto stretch = [](double wanted, double given) {
            return given > 0.0 ? Rounded(wanted / given) : 1.0;
        };
        CDxfInsert insert;
        insert.strLayer = LayerOf(radiator);
        const int color = LayerColor(radiator.nFarbe);
        insert.nColor =
            color == FindLayerColor(m_drawing.layers, insert.strLayer) ? kColorByLayer : color;
        insert.strBlock = block.strName;
        insert.dSkalaX = stretch(pose.dLaenge, block.bounds.width());
        insert.dSkalaY = stretch(pose.dTiefe, block.bounds.height());
        insert.dWinkel = pose.dWinkel;
        insert.punkt = BasePoint(pose, insert, block.bounds.center());
        const CString values[] = {radiator.anschluss.AnschlussAN,
                                  radiator.anschluss.AnschlussRI,
                                  FormatExact(radiator.daten.Laenge / 1000.0),
                                  FormatExact(radiator.daten.Tiefe / 1000.0),
                                  FormatExact(radiator.daten.Hoehe / 1000.0),
                                  radiator.strTyp,
                                  FormatFixed(radiator.daten.Leistung, 0)};
        for (std::size_t i = 0; i < std::size(values); ++i) {
            insert.attribute.push_back({kRadiatorAttributes[i], values[i]});
        }
        m_drawing.inserts.push_back(std::move(insert));
    }

    /// Where the block's base point comes to lie if its middle lies in that of the radiator.
    CDxfPoint BasePoint(const CRadiatorPose& pose, const CDxfInsert& insert,
                        const QPointF& middle) const
    {
        QTransform place;
        place.translate(pose.dX + m_dx, pose.dY);
        place.rotate(pose.dWinkel);
        place.scale(insert.dSkalaX, insert.dSkalaY);
        const QPointF base = place.map(-middle);
        return At(base.x(), base.y());
    }

    /// Along the radiator on its side towards the room, to be read from below or from the right.
    void AddLabel(const CPlacedRadiator& radiator, const CRadiatorPose& pose)
    {
        const CString text = radiator.strTyp + L", " + Watt(radiator.daten.Leistung);
        const bool isTurned = pose.dWinkel >= 180.0;
        const double away =
            pose.dTiefe / 2.0 + kLabelHeight / 2.0 + (isTurned ? kLabelHeight : 0.0);
        const double angle = pose.dWinkel * std::numbers::pi / 180.0;
        AddText(kLayerLabels,
                At(pose.dX + m_dx - away * std::sin(angle), pose.dY + away * std::cos(angle)),
                kLabelHeight, isTurned ? pose.dWinkel - 180.0 : pose.dWinkel, DxfAlign::middle,
                text);
    }

    void AddRectangle(const wchar_t* layer, const CDxfPoint& from, const CDxfPoint& to)
    {
        CDxfPolyline outline{{}, true};
        for (const CDxfPoint& corner :
             {from, CDxfPoint{to.x, from.y}, to, CDxfPoint{from.x, to.y}}) {
            outline.punkte.push_back({At(corner.x, corner.y), 0.0});
        }
        m_drawing.entities.push_back({layer, kColorByLayer, std::move(outline)});
    }

    void AddText(const wchar_t* layer, const CDxfPoint& at, double height, double angle,
                 DxfAlign align, const CString& text)
    {
        m_drawing.texts.push_back({layer, kColorByLayer, at, height, angle, align, text});
    }

    CDxfDrawing& m_drawing;
    const CBuilding& m_building;
    CBlockCollection m_blocks;
    double m_dx = 0.0;
};

} // namespace

CDxfDrawing MakeFloorDrawing(const CBuilding& building, std::size_t floor,
                             const CDxfDrawing& radiators, const CBlockLibrary* valves)
{
    CDxfDrawing drawing;
    CFloorDrawer(drawing, building, radiators, valves).Draw(floor, 0.0);
    return drawing;
}

CDxfDrawing MakePlanDrawing(const CBuilding& building, const CDxfDrawing& radiators,
                            const CBlockLibrary* valves)
{
    CDxfDrawing drawing;
    CFloorDrawer drawer(drawing, building, radiators, valves);
    double right = 0.0;
    for (std::size_t i = 0; i < building.floors.size(); ++i) {
        const QRectF bounds = WalledArea(building.floors[i]).boundingRect();
        const double dx = i == 0 ? 0.0 : std::ceil(right + kFloorGap - bounds.left());
        drawer.Draw(i, dx);
        drawer.DrawTitle(building.floors[i], bounds);
        right = bounds.right() + dx;
    }
    return drawing;
}

QPainterPath WalledArea(const CFloor& floor)
{
    QRegion region;
    for (const auto& room : floor.rooms) {
        const CFloorRect& plan = room->grundriss;
        constexpr double wall = kWall * 1000.0;
        region +=
            QRectF(plan.x - wall, plan.y - wall, plan.breite + 2 * wall, plan.tiefe + 2 * wall)
                .toRect();
    }
    QPainterPath path;
    path.addRegion(region);
    return QTransform::fromScale(0.001, 0.001).map(path.simplified());
}

} // namespace workbench
