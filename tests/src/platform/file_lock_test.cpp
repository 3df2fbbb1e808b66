#include "platform/file_lock.h"

#include "platform/whole_file.h"
#include "tests/support/other_program.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

void CountUp(const CString& path, int times)
{
    for (int i = 0; i < times; ++i) {
        const CFileLock lock(path);
        WriteWholeFile(path, std::to_string(std::stoi(*ReadWholeFile(path)) + 1));
    }
}

constexpr int kTimes = 100;

TEST(DISABLED_Other, CountsUp)
{
    CountUp(PathOfOther(), kTimes);
}

TEST(DISABLED_Other, TakesTheLock)
{
    const auto start = std::chrono::steady_clock::now();
    const CFileLock lock(PathOfOther());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
}

TEST(FileLock, WhatIsReadAndReplacedUnderItLosesNothing)
{
    const CTempFolder folder;
    folder.WriteBytes("count.txt", "0");
    const CString path = folder.Path("count.txt");
    COtherProgram other("CountsUp", path);
    CountUp(path, kTimes);
    EXPECT_TRUE(other.Succeeds());
    EXPECT_EQ(folder.ReadBytes("count.txt"), std::to_string(2 * kTimes));
}

TEST(FileLock, NobodyWaitsForHimselfOrForWhatCannotBeLocked)
{
    const CTempFolder folder;
    const auto start = std::chrono::steady_clock::now();
    {
        const CFileLock first(folder.Path("a.txt"));
        const CFileLock again(folder.Path("a.txt"));
        const CFileLock neighbour(folder.Path("b.txt"));
        const CFileLock nowhere(folder.Path("no/folder.txt"));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));

    // All of it is given back.
    EXPECT_TRUE(COtherProgram("TakesTheLock", folder.Path("a.txt")).Succeeds());
}

} // namespace
