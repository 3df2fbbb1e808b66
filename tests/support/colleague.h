#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

/// A user without special rights.
inline constexpr uid_t kColleagueId = 12345;

/// Makes the process that user for a while, where it is root; elsewhere it stays who it is.
class CAsColleague
{
public:
    CAsColleague() { EXPECT_EQ(geteuid() == 0 ? seteuid(kColleagueId) : 0, 0); }
    ~CAsColleague() { EXPECT_EQ(seteuid(getuid()), 0); }
    CAsColleague(const CAsColleague&) = delete;
    CAsColleague& operator=(const CAsColleague&) = delete;
};
