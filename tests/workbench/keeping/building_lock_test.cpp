#include "workbench/keeping/building_lock.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <memory>

namespace workbench {

namespace {

constexpr const char* kLock = ".casa.json.radsel-lock";

class BuildingLock : public testing::Test
{
protected:
    CTempFolder m_folder;
    CString m_building = m_folder.Path("casa.json");
};

} // namespace

TEST_F(BuildingLock, ShowsWhoHasItAndEndsWithHim)
{
    auto holder = std::make_unique<const CBuildingLock>(m_building);
    EXPECT_TRUE(holder->IsMine());
    m_folder.WriteBytes("casa.json", "");
    std::filesystem::create_symlink("casa.json", m_folder.Root() / "altra.json");
    for (const char* name : {"casa.json", "altra.json"}) {
        const CBuildingLock second(m_folder.Path(name));
        EXPECT_FALSE(second.IsMine());
        ASSERT_TRUE(second.GetOther());
        EXPECT_FALSE(second.GetOther()->strUser.empty());
        EXPECT_FALSE(second.GetOther()->strMachine.empty());
        EXPECT_NEAR(double(second.GetOther()->nTime), double(std::time(nullptr)), 60.0);
        EXPECT_NE(second.GetMessage().find(second.GetOther()->strUser), CString::npos);
    }
    const std::string left = m_folder.ReadBytes(kLock);
    holder.reset();
    EXPECT_FALSE(m_folder.Exists(kLock));

    m_folder.WriteBytes(kLock, left); // as a killed program leaves it, which holds it no longer
    const CBuildingLock next(m_building);
    EXPECT_TRUE(next.IsMine());
    EXPECT_TRUE(next.GetMessage().empty());
}

TEST_F(BuildingLock, AnotherMachinesLockCountsAsLongAsItIsTouched)
{
    const std::string foreign =
        R"({"version": 1, "user": "anna", "machine": "altrove", "time": "2026-03-01T14:05:00Z"})";
    m_folder.WriteBytes(kLock, foreign);
    {
        const CBuildingLock lock(m_building);
        ASSERT_TRUE(lock.GetOther());
        EXPECT_EQ(lock.GetOther()->strUser, L"anna");
        EXPECT_EQ(lock.GetOther()->strMachine, L"altrove");
    }
    EXPECT_EQ(m_folder.ReadBytes(kLock), foreign);
    const auto path = m_folder.Root() / kLock;
    const auto longAgo = std::filesystem::last_write_time(path) - std::chrono::minutes(10);
    std::filesystem::last_write_time(path, longAgo);
    const CBuildingLock lock(m_building);
    EXPECT_TRUE(lock.IsMine());

    std::filesystem::last_write_time(path, longAgo);
    lock.Refresh();
    EXPECT_GT(std::filesystem::last_write_time(path), longAgo + std::chrono::minutes(5));
}

TEST_F(BuildingLock, WhatStandsInItsPlaceDoesNotHinderWork)
{
    for (const char* leftover : {"", "{", "[1, 2]", "nessuno"}) {
        m_folder.WriteBytes(kLock, leftover);
        EXPECT_TRUE(CBuildingLock(m_building).IsMine()) << leftover;
    }
    const CBuildingLock nowhere(m_folder.Path("manca/casa.json"));
    EXPECT_FALSE(nowhere.IsMine());
    EXPECT_FALSE(nowhere.GetOther());
    EXPECT_NE(nowhere.GetMessage().find(L"manca/casa.json"), CString::npos);
}

} // namespace workbench
