#include "common/cached_lines.h"

#include "host/host_prefs.h"
#include "tests/src/common/lines.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <limits>

namespace {

constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

TEST(CachedLines, AFileIsReadOnceInTheLifeOfTheProcess)
{
    const CTempFolder folder;
    folder.WriteBytes("a.txt", "one\r\ntwo\r\n");
    CStringArray lines = Lines({L"left over"});
    ASSERT_TRUE(ReadCachedLines(folder.Path("a.txt"), lines, kNoLimit));
    EXPECT_EQ(lines, Lines({L"one", L"two"}));
    lines[0] = L"the caller's own copy";

    folder.WriteBytes("a.txt", "changed\r\n");
    EXPECT_TRUE(ReadCachedLines(folder.Path("a.txt"), lines, kNoLimit));
    EXPECT_EQ(lines, Lines({L"one", L"two"}));

    std::filesystem::remove(folder.Root() / "a.txt");
    EXPECT_TRUE(ReadCachedLines(folder.Path("a.txt"), lines, kNoLimit));
    EXPECT_EQ(lines, Lines({L"one", L"two"}));
}

TEST(CachedLines, AMissingFileFailsEmptiesTheLinesAndIsTriedAgain)
{
    const CTempFolder folder;
    CStringArray lines = Lines({L"left over"});
    EXPECT_FALSE(ReadCachedLines(folder.Path("late.txt"), lines, kNoLimit));
    EXPECT_TRUE(lines.IsEmpty());

    folder.WriteBytes("late.txt", "there\r\n");
    EXPECT_TRUE(ReadCachedLines(folder.Path("late.txt"), lines, kNoLimit));
    EXPECT_EQ(lines, Lines({L"there"}));
}

TEST(CachedLines, WhatTheHostPutInTheCacheAnswersWithoutAFile)
{
    const CTempFolder folder;
    CSettingsCache& cache = *lmGetCacheObject();
    const CString path = folder.Path("only in the cache");
    CStringArray lines = Lines({L"left over"});
    cache.AddFileToCache(path, Lines({L"old"}), false);
    cache.AddFileToCache(path, Lines({L"new"}), false);
    EXPECT_TRUE(ReadCachedLines(path, lines, kNoLimit));
    EXPECT_EQ(lines, Lines({L"new"}));
}

} // namespace
