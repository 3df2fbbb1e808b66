#include "workbench/drawing/block_path.h"
#include "workbench/drawing/block_picture.h"
#include "workbench/drawing/color_index.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace workbench {

namespace {

const std::vector<CDxfLayer> kLayers = {{L"0", 7}, {L"ROSSO", 1}};

CDxfBlock BlockOf(std::vector<CDxfEntity> entities, CDxfPoint basis = {})
{
    return {L"B", basis, std::move(entities)};
}

/// Pixels that are not white.
QRect InkOf(const CBitmap& bitmap)
{
    QRect ink;
    for (int y = 0; y < bitmap.GetHeight(); ++y) {
        for (int x = 0; x < bitmap.GetWidth(); ++x) {
            EXPECT_EQ(bitmap.GetAlpha(x, y), 255);
            if (bitmap.GetPixel(x, y) != RGB(255, 255, 255)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

QRectF BoundsOfShape(const CDxfShape& shape)
{
    return BoundsOf(MakeBlockPaths(CLayerColors(kLayers), BlockOf({{L"0", kColorByLayer, shape}})));
}

} // namespace

TEST(BlockPicture, TheBlockFillsThePaperWithinAMarginAndKeepsItsShape)
{
    const struct
    {
        CDxfPoint size;
        int width, height;
        QSize paper;
    } cases[] = {{{2, 1}, 0, 0, {120, 90}},
                 {{1, 3}, 200, 100, {200, 100}},
                 {{5e-7, 5e-7}, 60, 300, {60, 300}},
                 {{1e9, 2e8}, -5, 5000, {120, 2000}}};
    for (const auto& c : cases) {
        const CBitmap bitmap = DrawBlockPicture(
            kLayers, BlockOf({{L"0", kColorByLayer, CDxfLine{{}, c.size}}}), c.width, c.height);
        ASSERT_EQ(QSize(bitmap.GetWidth(), bitmap.GetHeight()), c.paper);
        const QRect ink = InkOf(bitmap);
        const QPointF off = QRectF(ink).center() - QRectF(QPointF(), c.paper).center();
        EXPECT_LE(std::hypot(off.x(), off.y()), 1.5);
        EXPECT_NEAR(double(ink.width() - 2) / (ink.height() - 2), c.size.x / c.size.y,
                    0.12 * c.size.x / c.size.y);
        const bool fillsWidth = ink.width() > 0.8 * c.paper.width();
        const bool fillsHeight = ink.height() > 0.8 * c.paper.height();
        EXPECT_TRUE(fillsWidth || fillsHeight);
        EXPECT_TRUE(ink.left() > 2 && ink.top() > 2);
    }
}

TEST(BlockPicture, UpIsUpAndColoursAreThoseOfEntityAndLayer)
{
    // A cross with a red upper arm of its layer's and a right arm of its own colour.
    const CBitmap bitmap =
        DrawBlockPicture(kLayers,
                         BlockOf({{L"rosso", kColorByLayer, CDxfLine{{0, 0.2}, {0, 1}}},
                                  {L"ROSSO", 5, CDxfLine{{0.2, 0}, {1, 0}}},
                                  {L"0", kColorByLayer, CDxfLine{{0, -0.2}, {0, -1}}},
                                  {L"ROSSO", kColorByBlock, CDxfLine{{-0.2, 0}, {-1, 0}}}}),
                         101, 101);
    // Anti-aliasing pales a line's middle a little.
    const auto expect = [&](int x, int y, COLORREF color) {
        const COLORREF pixel = bitmap.GetPixel(x, y);
        EXPECT_NEAR(GetRValue(pixel), GetRValue(color), 60);
        EXPECT_NEAR(GetGValue(pixel), GetGValue(color), 60);
        EXPECT_NEAR(GetBValue(pixel), GetBValue(color), 60);
    };
    expect(50, 25, RGB(255, 0, 0));
    expect(75, 50, RGB(0, 0, 255));
    expect(50, 75, RGB(0, 0, 0));
    expect(25, 50, RGB(0, 0, 0));
    expect(50, 50, RGB(255, 255, 255));
}

TEST(BlockPicture, NothingAndAPointAreDrawnWithoutHarm)
{
    EXPECT_TRUE(InkOf(DrawBlockPicture(kLayers, BlockOf({}), 0, 0)).isNull());
    EXPECT_TRUE(
        InkOf(DrawBlockPicture(kLayers, BlockOf({{L"0", 1, CDxfPolyline{}}}), 0, 0)).isNull());
    const CDxfPolyline point{{{{5, 5}, 1}, {{5, 5}, 0}}, true};
    EXPECT_LE(InkOf(DrawBlockPicture(kLayers, BlockOf({{L"0", 1, point}}), 0, 0)).width(), 4);
}

TEST(BlockPath, CurvesTurnTheRightWay)
{
    const double half = std::sqrt(0.5);
    const struct
    {
        CDxfShape shape;
        QRectF bounds;
    } cases[] = {
        {CDxfArc{{1, 1}, 1, 0, 90}, {1, 1, 1, 1}},
        {CDxfArc{{0, 0}, 1, 90, 180}, {-1, 0, 1, 1}},
        {CDxfArc{{0, 0}, 1, 315, 45}, {half, -half, 1 - half, 2 * half}},
        {CDxfArc{{0, 0}, 1, 30, 30}, {-1, -1, 2, 2}},
        {CDxfCircle{{2, 0}, 0.5}, {1.5, -0.5, 1, 1}},
        // Half circles to the right of the way and to its left, three quarters, and one unbent.
        {CDxfPolyline{{{{0, 0}, 1}, {{2, 0}, 0}}, false}, {0, -1, 2, 1}},
        {CDxfPolyline{{{{0, 0}, -1}, {{2, 0}, 0}}, false}, {0, 0, 2, 1}},
        {CDxfPolyline{{{{0, 0}, std::tan(M_PI * 3 / 8)}, {{1, 1}, 0}}, false}, {0, -1, 2, 2}},
        {CDxfPolyline{{{{0, 0}, 1e-12}, {{2, 1}, 0}}, false}, {0, 0, 2, 1}},
        {CDxfPolyline{{{{0, 0}, 0}, {{2, 0}, 1}}, true}, {0, 0, 2, 1}},
    };
    for (const auto& c : cases) {
        const QRectF bounds = BoundsOfShape(c.shape);
        EXPECT_NEAR(bounds.left(), c.bounds.left(), 1e-3);
        EXPECT_NEAR(bounds.top(), c.bounds.top(), 1e-3);
        EXPECT_NEAR(bounds.right(), c.bounds.right(), 1e-3);
        EXPECT_NEAR(bounds.bottom(), c.bounds.bottom(), 1e-3);
    }
}

TEST(BlockPath, TheBasePointIsTheOrigin)
{
    const auto paths =
        MakeBlockPaths(CLayerColors(kLayers), BlockOf({{L"0", 1, CDxfCircle{{3, 4}, 1}}}, {3, 4}));
    EXPECT_EQ(BoundsOf(paths), QRectF(-1, -1, 2, 2));
}

TEST(ColorIndex, IndexesAreTheColoursThatCadProgramsShow)
{
    const std::pair<int, COLORREF> cases[] = {
        {1, RGB(255, 0, 0)},     {5, RGB(0, 0, 255)},      {7, RGB(255, 255, 255)},
        {10, RGB(255, 0, 0)},    {11, RGB(255, 127, 127)}, {14, RGB(127, 0, 0)},
        {30, RGB(255, 127, 0)},  {50, RGB(255, 255, 0)},   {90, RGB(0, 255, 0)},
        {170, RGB(0, 0, 255)},   {250, RGB(51, 51, 51)},   {255, RGB(255, 255, 255)},
        {0, RGB(255, 255, 255)}, {-1, RGB(255, 255, 255)}, {256, RGB(255, 255, 255)}};
    for (const auto& [index, color] : cases) {
        EXPECT_EQ(ColorFromIndex(index), color) << index;
    }
    EXPECT_EQ(PaperColorFromIndex(7), RGB(0, 0, 0));
}

} // namespace workbench
