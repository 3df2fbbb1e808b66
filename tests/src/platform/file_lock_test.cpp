#include "platform/file_lock.h"

#include "platform/whole_file.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

void CountUp(const CString& path, int times)
{
    for (int i = 0; i < times; ++i) {
        const CFileLock lock(path);
        WriteWholeFile(path, std::to_string(std::stoi(*ReadWholeFile(path)) + 1));
    }
}

TEST(FileLock, WhatIsReadAndReplacedUnderItLosesNothing)
{
    constexpr int kTimes = 100;
    const CTempFolder folder;
    folder.WriteBytes("count.txt", "0");
    const CString path = folder.Path("count.txt");
    const pid_t other = fork();
    CountUp(path, kTimes);
    if (other == 0) {
        _exit(0);
    }
    int status = -1;
    waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
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
    const pid_t other = fork();
    if (other == 0) {
        alarm(4);
        const CFileLock lock(folder.Path("a.txt"));
        _exit(0);
    }
    int status = -1;
    waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
}

} // namespace
