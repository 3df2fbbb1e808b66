#include "host/host_base.h"
#include "reference_host/base/values/color_table.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>
#include <utility>
#include <vector>

using namespace reference_host;

namespace {

TEST(ColorPalette, HasTheColoursThatDrawingsMean)
{
    const std::pair<int, COLORREF> known[] = {
        {1, RGB(255, 0, 0)},       {2, RGB(255, 255, 0)},     {3, RGB(0, 255, 0)},
        {4, RGB(0, 255, 255)},     {5, RGB(0, 0, 255)},       {6, RGB(255, 0, 255)},
        {7, RGB(255, 255, 255)},   {8, RGB(128, 128, 128)},   {9, RGB(192, 192, 192)},
        {10, RGB(255, 0, 0)},      {11, RGB(255, 127, 127)},  {12, RGB(165, 0, 0)},
        {13, RGB(165, 82, 82)},    {18, RGB(38, 0, 0)},       {19, RGB(38, 19, 19)},
        {21, RGB(255, 159, 127)},  {30, RGB(255, 127, 0)},    {62, RGB(124, 165, 0)},
        {24, RGB(127, 31, 0)},     {48, RGB(38, 28, 0)},      {90, RGB(0, 255, 0)},
        {150, RGB(0, 127, 255)},   {210, RGB(255, 0, 255)},   {240, RGB(255, 0, 63)},
        {250, RGB(51, 51, 51)},    {251, RGB(91, 91, 91)},    {252, RGB(132, 132, 132)},
        {253, RGB(173, 173, 173)}, {254, RGB(214, 214, 214)}, {255, RGB(255, 255, 255)},
        {0, RGB(0, 0, 0)},         {256, RGB(0, 0, 0)},       {-1, RGB(0, 0, 0)}};
    for (const auto& [index, color] : known) {
        EXPECT_EQ(GetRGBFromColor(index), color) << index;
    }
}

TEST(ColorTable, MovesGoToTheNearestColourAndStopAtTheEdge)
{
    const std::tuple<int, ColorMove, int> cases[] = {
        {0, ColorMove::up, 1},       {1, ColorMove::left, 1},   {9, ColorMove::right, 250},
        {250, ColorMove::left, 9},   {255, ColorMove::up, 255}, {255, ColorMove::down, 248},
        {10, ColorMove::right, 20},  {10, ColorMove::up, 12},   {10, ColorMove::down, 11},
        {19, ColorMove::down, 19},   {18, ColorMove::up, 1},    {118, ColorMove::up, 9},
        {240, ColorMove::right, 240}};
    for (const auto& [from, move, to] : cases) {
        EXPECT_EQ(NeighbourOf(from, move), to) << "from " << from;
    }
}

TEST(ColorTable, EveryColourCanBeReachedWithTheArrows)
{
    std::set<int> reached = {kFirstColorIndex};
    std::vector<int> open(reached.begin(), reached.end());
    while (!open.empty()) {
        const int from = open.back();
        open.pop_back();
        for (const ColorMove move :
             {ColorMove::left, ColorMove::right, ColorMove::up, ColorMove::down}) {
            if (const int to = NeighbourOf(from, move); reached.insert(to).second) {
                open.push_back(to);
            }
        }
    }
    EXPECT_EQ(reached.size(), 255U);
}

} // namespace
