#include "platform/encoding.h"
#include "tests/workbench/window/plan_window.h"
#include "workbench/window/coverage_look.h"
#include "workbench/window/room_label.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>

#include <iterator>
#include <set>
#include <tuple>

namespace workbench {

namespace {

/// Those of the sample's rooms, in their order.
constexpr Coverage kCoverages[] = {Coverage::lacking,   Coverage::covered,  Coverage::empty,
                                   Coverage::notNeeded, Coverage::tooLarge, Coverage::oversized};

/// The sign as pixels in its ink or not, so that its shape counts only.
std::vector<bool> ShapeOf(Coverage coverage)
{
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    PaintSign(painter, coverage, QRectF(0, 0, 16, 16));
    painter.end();
    std::vector<bool> shape;
    for (int i = 0; i < 256; ++i) {
        shape.push_back(image.pixelColor(i % 16, i / 16).alpha() > 128);
    }
    return shape;
}

CRoom RoomNamed(const CString& name)
{
    CRoom room;
    room.strName = name;
    room.bedarf = 12345.0;
    return room;
}

} // namespace

TEST(FloorLook, EveryStateHasItsFloorColourAndASignOfItsOwnShape)
{
    CPlanWindowTest window;
    window.rooms.Add(0, L"Largo", 1000.0, {1000.0});
    CPlacedRadiator radiator = RadiatorOf(window.rooms.building, {{0, 4}, 0});
    radiator.daten.Laenge = 1201.0;
    ReplaceRadiator(window.rooms.building, {{0, 4}, 0}, radiator);
    window.rooms.Add(0, L"Troppo", 1000.0, {1151.0});
    window.scene.ShowFloor(window.rooms.building, 0);
    window.view.FitToContent();
    const QImage picture = window.Picture();
    std::set<QRgb> fills;
    std::set<std::vector<bool>> shapes;
    for (const Coverage coverage : kCoverages) {
        fills.insert(FillOf(coverage).rgb());
        shapes.insert(ShapeOf(coverage));
    }
    EXPECT_EQ(fills.size(), std::size(kCoverages));
    EXPECT_EQ(shapes.size(), std::size(kCoverages));
    for (std::size_t i = 0; i < std::size(kCoverages); ++i) {
        // Near the upper left corner, where no text stands.
        const QPointF corner = window.scene.BoundsOf({0, i}).bottomLeft() + QPointF(0.2, -0.2);
        EXPECT_EQ(picture.pixelColor(window.Pixel(corner)), FillOf(kCoverages[i]));
    }
    const QPointF corner = window.scene.BoundsOf({0, 5}).bottomLeft() + QPointF(0.2, -0.2);
    window.rooms.building.ueberschussMax = 20.0; // the room is the same
    window.scene.ShowFloor(window.rooms.building, 0);
    EXPECT_EQ(window.Picture().pixelColor(window.Pixel(corner)), FillOf(Coverage::covered));
}

TEST(FloorLook, RadiatorsShowInTheColourOfTheirLayerBelowTheWindow)
{
    CPlanWindowTest window;
    window.view.ZoomAt({}, 30.0 / window.view.transform().m11());
    window.view.centerOn(kInSud);
    const QImage picture = window.Picture();
    EXPECT_EQ(picture.pixelColor(window.Pixel(kOnSudRadiator)), QColor(255, 0, 0));
    // Windows lie in the wall to the south, 0.3 m thick; the second one has no radiator.
    const QColor wall = picture.pixelColor(window.Pixel({2.0, -0.25}));
    const QColor glass = picture.pixelColor(window.Pixel({1.0, -0.25}));
    EXPECT_EQ(picture.pixelColor(window.Pixel({3.0, -0.25})), glass);
    EXPECT_GT(glass.lightness(), wall.lightness() + 100);
}

TEST(FloorLook, ValvesStandBeyondTheEndThatTheyAreConnectedTo)
{
    // South of the room, so that who looks from there has east on his left.
    const wchar_t* const eastern = L"-0.5;0;0;0;0.5;0;180;0";
    const wchar_t* const western = L"0.5;0;0;0;0.5;0;0;0";
    const wchar_t* const fromBelow = L"0;0;0;0;-0.5;0;0;270";
    const std::tuple<const wchar_t*, const wchar_t*, Wall> cases[] = {
        {eastern, L"VALVOLA_DIRITTA", Wall::ost},
        {eastern, L"VALVOLA_SQUADRA_SX", Wall::ost},
        {western, L"VALVOLA_SQUADRA_DX", Wall::west},
        {western, L"valvola_squadra_term_sx", Wall::west},
        {fromBelow, L"BLOCCO_H_DIRITTO", Wall::sued},
        // Without a block of that name the pipe's arrow shows.
        {eastern, L"sconosciuta", Wall::ost},
        {western, L"", Wall::west},
    };
    const CBlockLibrary valves(WideFromUtf8(RADSEL_DATA_DIR "/drawing/ventile.dxf"));
    const CPlanBlocks blocks({}, &valves);
    CSamplePlanRooms rooms;
    for (const auto& [point, block, beyond] : cases) {
        SCOPED_TRACE(Utf8FromWide(block));
        CPlacedRadiator radiator = RadiatorOf(rooms.building, kSudRadiator);
        radiator.anschluss.AnschlussAN = point;
        radiator.anschluss.AnschlussRI.clear();
        radiator.anschluss.GrafikAN = block;
        ReplaceRadiator(rooms.building, kSudRadiator, radiator);
        const CRadiatorDrawing drawing(rooms.building, kSudRadiator, blocks);
        const QRectF& outline = drawing.GetOutline();
        const QRectF& bounds = drawing.GetBounds();
        EXPECT_EQ(bounds.right() > outline.right() + 0.08, beyond == Wall::ost);
        EXPECT_EQ(bounds.left() < outline.left() - 0.08, beyond == Wall::west);
        EXPECT_EQ(bounds.top() < outline.top() - 0.08, beyond == Wall::sued);
    }
}

TEST(FloorLook, ConnectionsCanBeLeftOutForAPreview)
{
    CPlanWindowTest window;
    CPlacedRadiator radiator = RadiatorOf(window.rooms.building, kSudRadiator);
    window.view.ZoomAt({}, 200.0 / window.view.transform().m11());
    window.view.centerOn(kOnSudRadiator);
    const QImage bare = window.Picture();
    radiator.anschluss.AnschlussAN = L"-0.5;0;0;0;0.5;0;180;0";
    ReplaceRadiator(window.rooms.building, kSudRadiator, radiator);
    window.scene.ShowFloor(window.rooms.building, 0);
    EXPECT_NE(window.Picture(), bare);
    window.scene.ShowConnections(false);
    EXPECT_EQ(window.Picture(), bare);
}

TEST(RoomLabel, TextsKeepToTheirAreaAndItsFreeCornersAndGiveWayToTheName)
{
    const CRoomLabel label(RoomNamed(L"Camera degli ospiti"), Coverage::empty);
    const struct
    {
        QSizeF area;
        double corner, scale;
        std::size_t texts;
    } cases[] = {
        {{900, 700}, 0, 200, 7}, {{400, 300}, 30, 80, 7}, {{130, 90}, 0, 30, 7},
        {{130, 90}, 30, 30, 1},  {{130, 30}, 8, 30, 1},   {{70, 60}, 10, 20, 1},
        {{20, 60}, 0, 5, 0},     {{130, 6}, 0, 30, 0},    {{0, 0}, 0, 30, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.area.width() << " by " << c.area.height());
        const auto& texts = label.Arrange(c.area, c.corner, c.scale);
        EXPECT_EQ(texts.size(), c.texts);
        const QRectF area(QPointF(-c.area.width(), -c.area.height()) / 2, c.area);
        const QRectF beside = area.adjusted(c.corner, 0, -c.corner, 0);
        const QRectF between = area.adjusted(0, c.corner, 0, -c.corner);
        for (const CRoomLabel::CText& text : texts) {
            const double capital = QFontMetricsF(text.font).capHeight();
            const QRectF place(text.punkt - QPointF(0, capital), QSizeF(text.dWidth, capital));
            EXPECT_TRUE(beside.contains(place) || between.contains(place))
                << qPrintable(text.strText);
        }
    }
}

} // namespace workbench
