#include "host_defaults/dialogs/color_table.h"

#include "host/host_base.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>
#include <utility>
#include <vector>

using namespace host_defaults;

namespace {

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
