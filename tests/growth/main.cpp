// Windows without a screen, and small ones: what is painted depends on their size and not on what
// the tests make grow, and would take the most of their time.

#include "tools/pretended_screen.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 300;

} // namespace

int main(int argc, char** argv)
{
    // An order of the toolkit's hash tables that is the same in every run.
    setenv("QT_HASH_SEED", "0", 1);
    const CPretendedScreen screen(kWidth, kHeight);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
