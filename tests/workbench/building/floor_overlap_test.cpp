#include "workbench/building/floor_overlap.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

namespace workbench {

namespace {

using Rects = std::vector<CFloorRect>;

constexpr double kAllowed = 3.0;

/// Every rectangle against every other one.
bool HasOverlap(const Rects& rects)
{
    for (std::size_t i = 0; i < rects.size(); ++i) {
        for (std::size_t j = i + 1; j < rects.size(); ++j) {
            if (OverlapOf(rects[i], rects[j]) > kAllowed) {
                return true;
            }
        }
    }
    return false;
}

/// Random rectangles that begin within these sides. Whole numbers make sides that meet, and
/// overlaps of exactly what is allowed, common.
Rects MakeFloor(std::mt19937& random, int count, int width, int depth)
{
    const auto below = [&](int end) { return double(random() % unsigned(end)); };
    Rects rects;
    for (int i = 0; i < count; ++i) {
        rects.push_back({below(width + 1), below(depth + 1), 1 + below(12), 1 + below(12)});
    }
    return rects;
}

Rects Column(int count)
{
    Rects rects;
    for (int i = 0; i < count; ++i) {
        rects.push_back({0.0, i * 7.0, 10.0, 10.0});
    }
    return rects;
}

} // namespace

TEST(FloorOverlap, IsFoundWhereComparingAllFindsOne)
{
    const std::pair<int, int> floors[] = {{60, 60}, {0, 300}, {300, 0}, {4, 200}, {1000, 1000}};
    std::mt19937 random(20240302);
    for (const auto& [width, depth] : floors) {
        int found = 0;
        constexpr int kFloors = 3000;
        for (int i = 0; i < kFloors; ++i) {
            const Rects rects = MakeFloor(random, 2 + i % 12, width, depth);
            const auto overlap = FindOverlap(rects, kAllowed);
            ASSERT_EQ(overlap.has_value(), HasOverlap(rects)) << testing::PrintToString(i);
            if (overlap) {
                ++found;
                const CFloorRect& first = rects[overlap->nFirst];
                const CFloorRect& second = rects[overlap->nSecond];
                ASSERT_NE(overlap->nFirst, overlap->nSecond);
                ASSERT_GT(OverlapOf(first, second), kAllowed);
                ASSERT_LE(first.x, second.x);
            }
        }
        EXPECT_GT(found, 0);
        EXPECT_LT(found, kFloors);
    }
}

/// Comparing each with all that stand beside it takes minutes, which the test run does not allow.
TEST(FloorOverlap, ALongColumnIsSearchedQuickly)
{
    constexpr int kCount = 300'000;
    Rects rects = Column(kCount);
    EXPECT_FALSE(FindOverlap(rects, kAllowed));
    rects.push_back({0.0, (kCount - 1) * 7.0 + 3.5, 10.0, 10.0});
    const auto overlap = FindOverlap(rects, kAllowed);
    ASSERT_TRUE(overlap);
    EXPECT_GT(OverlapOf(rects[overlap->nFirst], rects[overlap->nSecond]), kAllowed);
}

} // namespace workbench
