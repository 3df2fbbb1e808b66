#include "tests/dialog_support/widget_look.h"
#include "tests/workbench/window/plan_window.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <optional>
#include <utility>

namespace workbench {

namespace {

using Rooms = std::vector<CRoomRef>;
using Radiators = std::vector<CRadiatorRef>;

class FloorScene : public testing::Test, public CPlanWindowTest
{
protected:
    void ExpectMarks(const Rooms& markedRooms, const Radiators& markedRadiators) const
    {
        EXPECT_EQ(scene.GetMarkedRooms(), markedRooms);
        EXPECT_EQ(scene.GetMarkedRadiators(), markedRadiators);
    }
};

/// The smallest rectangle around all that differs.
QRect Difference(const QImage& a, const QImage& b)
{
    QRect changed;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                changed |= QRect(x, y, 1, 1);
            }
        }
    }
    return changed;
}

} // namespace

TEST_F(FloorScene, ClicksMarkOneThingAndExtendWithinItsKind)
{
    const struct
    {
        QPointF place;
        Qt::KeyboardModifiers modifiers;
        Rooms rooms;
        Radiators radiators;
    } clicks[] = {
        {kInSud, {}, {kSud}, {}},
        {kInEst, {}, {kEst}, {}},
        {kInSud, Qt::ControlModifier, {kSud, kEst}, {}},
        {kInEst, Qt::ShiftModifier, {kSud}, {}},
        {kOutside, Qt::ControlModifier, {kSud}, {}},
        {kOnEstRadiator, Qt::ControlModifier, {}, {kEstRadiator}},
        {kOnSudRadiator, Qt::ShiftModifier, {}, {kSudRadiator, kEstRadiator}},
        {kOnSudRadiator, {}, {}, {kSudRadiator}},
        {kOutside, {}, {}, {}},
    };
    QSignalSpy changes(&scene, &CFloorScene::MarkChanged);
    for (const auto& click : clicks) {
        Click(click.place, click.modifiers);
        ExpectMarks(click.rooms, click.radiators);
    }
    // The one on empty ground with Ctrl changed nothing.
    EXPECT_EQ(changes.size(), 8);
}

TEST_F(FloorScene, DraggingMovesThePlanAndMarksNothing)
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        const QPoint before = Pixel(kInSud);
        const QPoint end = Pixel(kInEst);
        Drag(kInSud, kInEst, button);
        EXPECT_LE((Pixel(kInSud) - end).manhattanLength(), 2);
        EXPECT_GT((Pixel(kInSud) - before).manhattanLength(), 50);
        ExpectMarks({}, {});
        view.FitToContent();
    }
}

TEST_F(FloorScene, ABandWithShiftAddsTheRadiatorsThatItTouches)
{
    scene.MarkRooms({kNord});
    const QPoint before = Pixel(kInSud);
    Drag({-0.2, 1.0}, {5.0, 0.1}, Qt::LeftButton, Qt::ShiftModifier);
    ExpectMarks({}, {kSudRadiator, kEstRadiator});
    Drag({8.0, 0.5}, {7.0, 0.12}, Qt::LeftButton, Qt::ShiftModifier);
    ExpectMarks({}, {kSudRadiator, kEstRadiator, kEstSecond});
    EXPECT_EQ(Pixel(kInSud), before);
}

TEST_F(FloorScene, TheKeyboardReachesEveryRoomAndRadiator)
{
    const struct
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        Rooms rooms;
        Radiators radiators;
    } keys[] = {
        {Qt::Key_Tab, {}, {kSud}, {}},
        {Qt::Key_Tab, {}, {kEst}, {}},
        {Qt::Key_Space, {}, {}, {kEstRadiator}},
        {Qt::Key_Space, {}, {}, {kEstSecond}},
        {Qt::Key_Space, {}, {}, {kEstRadiator}},
        {Qt::Key_Space, Qt::ShiftModifier, {}, {kEstRadiator, kEstSecond}},
        {Qt::Key_A, Qt::ControlModifier, {}, {kSudRadiator, kEstRadiator, kEstSecond}},
        {Qt::Key_Tab, {}, {kNord}, {}},
        {Qt::Key_Right, Qt::ShiftModifier, {kNord, kAtrio}, {}},
        {Qt::Key_Escape, {}, {}, {}},
        {Qt::Key_Backtab, Qt::ShiftModifier, {kNord}, {}},
        {Qt::Key_Left, Qt::ShiftModifier, {kEst, kNord}, {}},
        {Qt::Key_A, Qt::ControlModifier, {kSud, kEst, kNord, kAtrio}, {}},
    };
    for (const auto& key : keys) {
        Key(key.key, key.modifiers);
        ExpectMarks(key.rooms, key.radiators);
    }
}

TEST_F(FloorScene, TabGoesOnToTheNextControlBehindTheLastRoom)
{
    QWidget window;
    auto* const layout = new QVBoxLayout(&window);
    auto* const next = new QPushButton;
    layout->addWidget(&view);
    layout->addWidget(next);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    view.setFocus();
    for (const CRoomRef& room : {kSud, kEst, kNord, kAtrio}) {
        Key(Qt::Key_Tab);
        ExpectMarks({room}, {});
    }
    EXPECT_TRUE(view.hasFocus());
    Key(Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    view.setParent(nullptr);
}

TEST_F(FloorScene, TabBringsARoomThatIsOutOfSightIntoTheWindow)
{
    view.ZoomAt(Pixel(kInSud), 8.0);
    Key(Qt::Key_Tab);
    Key(Qt::Key_Tab);
    const QRectF seen = view.mapToScene(view.viewport()->rect()).boundingRect();
    EXPECT_TRUE(seen.intersects(scene.BoundsOf(kEst)));
}

TEST_F(FloorScene, DoubleClickAndReturnActivate)
{
    std::optional<CRoomRef> room;
    std::optional<CRadiatorRef> radiator;
    QObject::connect(&scene, &CFloorScene::RoomActivated, [&](const CRoomRef& ref) { room = ref; });
    QObject::connect(&scene, &CFloorScene::RadiatorActivated,
                     [&](const CRadiatorRef& ref) { radiator = ref; });
    Click(kInEst);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, Pixel(kInEst));
    EXPECT_EQ(room, kEst);
    ExpectMarks({kEst}, {});
    EXPECT_FALSE(radiator);
    Click(kOnSudRadiator);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, Pixel(kOnSudRadiator));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::ControlModifier, {});
    ExpectMarks({}, {kSudRadiator});
    EXPECT_EQ(radiator, kSudRadiator);
    room.reset();
    Key(Qt::Key_Return);
    EXPECT_FALSE(room);
    scene.MarkRooms({kNord});
    Key(Qt::Key_Return);
    EXPECT_EQ(room, kNord);
    room.reset();
    scene.MarkRooms({kNord, kSud});
    Key(Qt::Key_Return);
    EXPECT_FALSE(room);
}

TEST_F(FloorScene, AChangeToARoomIsPaintedThereAndKeepsTheOthersItems)
{
    const QList<QGraphicsItem*> items = scene.items();
    const QImage before = Picture();
    rooms.Demand(kSud, 500.0);
    scene.ShowFloor(rooms.building, 0);
    EXPECT_EQ(scene.items(), items);
    const QRect changed = Difference(before, Picture());
    const QRect room = view.mapFromScene(scene.BoundsOf(kSud)).boundingRect();
    EXPECT_GT(changed.width(), room.width() / 2);
    EXPECT_TRUE(room.adjusted(-2, -2, 2, 2).contains(changed));
}

TEST_F(FloorScene, MarksStayWithWhatIsStillThere)
{
    scene.MarkRadiators({kSudRadiator, kEstRadiator, kEstSecond, {kNord, 0}, {{1, 0}, 0}});
    ExpectMarks({}, {kSudRadiator, kEstRadiator, kEstSecond});
    QSignalSpy changes(&scene, &CFloorScene::MarkChanged);
    rooms.Demand(kSud, 800.0);
    scene.ShowFloor(rooms.building, 0);
    EXPECT_TRUE(changes.empty());
    RemoveRadiators(rooms.building, {kEstSecond});
    scene.ShowFloor(rooms.building, 0);
    ExpectMarks({}, {kSudRadiator, kEstRadiator});
    // Another room in the place of the first.
    CRoom other = RoomOf(rooms.building, kSud);
    other.strName = L"Altro";
    ReplaceRoom(rooms.building, kSud, other);
    scene.ShowFloor(rooms.building, 0);
    ExpectMarks({}, {kEstRadiator});
    scene.ShowFloor(rooms.building, 1);
    ExpectMarks({}, {});
    EXPECT_EQ(changes.size(), 3);
    EXPECT_TRUE(scene.BoundsOf(kSud).isNull());
    scene.ShowFloor(rooms.building, 7);
    Key(Qt::Key_Tab);
    ExpectMarks({}, {});
}

TEST_F(FloorScene, MarkedThingsAreFramed)
{
    const QImage plain = Picture();
    scene.MarkRooms({kEst});
    const QRect room = view.mapFromScene(scene.BoundsOf(kEst)).boundingRect();
    const QRect framed = Difference(plain, Picture());
    EXPECT_TRUE(framed.contains(room));
    EXPECT_TRUE(room.adjusted(-4, -4, 4, 4).contains(framed));
    scene.MarkRadiators({kSudRadiator});
    const QRect around = Difference(plain, Picture());
    EXPECT_TRUE(around.contains(Pixel(kOnSudRadiator)));
    EXPECT_LT(around.width(), room.width() / 2);
}

TEST_F(FloorScene, ToolTipsHoldTheDataOfWhatLiesBelow)
{
    CRoom room = RoomOf(rooms.building, kSud);
    room.strName = L"Bar <A&B>";
    ReplaceRoom(rooms.building, kSud, room);
    scene.ShowFloor(rooms.building, 0);
    const std::pair<QPointF, std::vector<const char*>> cases[] = {
        {kInSud, {"Bar &lt;A&amp;B&gt;", "1000 W", "500 W", "12 m²", "20 °C", "Scarso"}},
        {kOnSudRadiator, {"22/600", "600 × 100 × 1000 mm", "500 W", "sotto la finestra"}},
    };
    for (const auto& [place, texts] : cases) {
        const QString tip = TipAt(*view.viewport(), Pixel(place));
        for (const char* const text : texts) {
            EXPECT_TRUE(tip.contains(QString::fromUtf8(text))) << text << " in " << qPrintable(tip);
        }
    }
}

} // namespace workbench
