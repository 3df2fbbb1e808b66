#include "tests/workbench/window/plan_window.h"

#include <gtest/gtest.h>

#include <tuple>

namespace workbench {

namespace {

class PlanView : public testing::Test, public CPlanWindowTest
{
protected:
    double Scale() const { return view.transform().m11(); }
};

} // namespace

TEST_F(PlanView, KeysZoomAndMoveAndShowAll)
{
    const double fitted = Scale();
    Key(Qt::Key_Plus);
    Key(Qt::Key_Equal);
    const double nearer = Scale();
    EXPECT_GT(nearer, 1.3 * fitted);
    Key(Qt::Key_Minus);
    EXPECT_LT(Scale(), nearer);
    const std::tuple<Qt::Key, int, int> arrows[] = {
        {Qt::Key_Left, 1, 0}, {Qt::Key_Right, -1, 0}, {Qt::Key_Up, 0, 1}, {Qt::Key_Down, 0, -1}};
    for (const auto& [key, dx, dy] : arrows) {
        const QPoint before = Pixel(kInSud);
        Key(key);
        const QPoint moved = Pixel(kInSud) - before;
        EXPECT_EQ(moved.x() > 20, dx > 0);
        EXPECT_EQ(moved.x() < -20, dx < 0);
        EXPECT_EQ(moved.y() > 20, dy > 0);
        EXPECT_EQ(moved.y() < -20, dy < 0);
    }
    Key(Qt::Key_Home);
    EXPECT_NEAR(Scale(), fitted, 1e-9);
}

TEST_F(PlanView, AClickLeavesThePlanFittedAndADragDoesNot)
{
    const double fitted = Scale();
    Click(kInSud);
    view.resize(450, 200);
    QApplication::processEvents();
    EXPECT_LT(Scale(), 0.6 * fitted);
    Drag(kInSud, kInEst, Qt::LeftButton);
    const double dragged = Scale();
    view.resize(900, 400);
    QApplication::processEvents();
    EXPECT_NEAR(Scale(), dragged, 1e-9);
}

} // namespace workbench
