#include "tests/support/colleague.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

constexpr uid_t kColleagueId = 12345;

} // namespace

CAsColleague::CAsColleague()
{
    EXPECT_EQ(geteuid() == 0 ? seteuid(kColleagueId) : 0, 0);
}

CAsColleague::~CAsColleague()
{
    EXPECT_EQ(seteuid(getuid()), 0);
}

void GiveToColleague(const std::filesystem::path& file)
{
    EXPECT_EQ(geteuid() == 0 ? chown(file.c_str(), kColleagueId, getegid()) : 0, 0);
}

void GiveToColleagueAndGroup(const std::filesystem::path& file)
{
    EXPECT_EQ(geteuid() == 0 ? chown(file.c_str(), kColleagueId, kColleagueId) : 0, 0);
}
