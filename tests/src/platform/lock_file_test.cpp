#include "platform/lock_file.h"

#include "platform/descriptor.h"
#include "platform/user_name.h"
#include "platform/write_protection.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::minutes kLong{10};

TEST(LockFile, OneHasItsLockUntilHeClosesItAndTouchesIt)
{
    const CTempFolder folder;
    const fs::path file = folder.Root() / "a.lock";
    bool writable = false;
    const int first = OpenLockFile(file, writable);
    EXPECT_TRUE(writable);
    const int second = OpenOwnLockFile(file);
    EXPECT_EQ(TakeLock(first), LockAnswer::taken);
    EXPECT_EQ(TakeLock(second), LockAnswer::held);

    fs::last_write_time(file, fs::last_write_time(file) - kLong);
    EXPECT_GE(TimeSinceTouched(first), kLong);
    EXPECT_TRUE(TouchDescriptor(first));
    EXPECT_LT(TimeSinceTouched(first).value_or(kLong), kLong);

    CloseDescriptor(first);
    EXPECT_EQ(TakeLock(second), LockAnswer::taken);
    EXPECT_TRUE(IsStillAt(second, file));
    fs::rename(file, folder.Root() / "b.lock");
    EXPECT_FALSE(IsStillAt(second, file));
    folder.WriteBytes("a.lock", "");
    EXPECT_FALSE(IsStillAt(second, file)) << "another one of that name";
    CloseDescriptor(second);

    EXPECT_LT(OpenOwnLockFile(folder.Root() / "no" / "a.lock"), 0);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(TimeSinceTouched(-1), std::nullopt);
    EXPECT_EQ(TakeLock(-1), LockAnswer::none);
}

TEST(WriteProtection, IsWhatNobodyMayWriteTo)
{
    const CTempFolder folder;
    folder.WriteBytes("a.txt", "");
    const fs::path file = folder.Root() / "a.txt";
    EXPECT_FALSE(IsWriteProtected(file));
    EXPECT_FALSE(IsWriteProtected(folder.Root()));
    EXPECT_FALSE(IsWriteProtected(folder.Root() / "none.txt"));
    fs::permissions(file, fs::perms(0444));
    EXPECT_TRUE(IsWriteProtected(file));
    fs::permissions(file, fs::perms(0666));
    EXPECT_FALSE(UserName().empty());
}

TEST(Descriptor, WhatIsReadOnlyHasNothingToWriteToTheDisk)
{
    const CTempFolder folder;
    folder.WriteBytes("a.txt", "a");
    const int descriptor = OpenDescriptor(folder.Root() / "a.txt", FileAccess::read);
    EXPECT_TRUE(SyncDescriptor(descriptor));
    EXPECT_LT(WriteDescriptor(descriptor, "b", 1), 0);
    CloseDescriptor(descriptor);
}

} // namespace
