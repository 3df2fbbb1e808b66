#include "tests/support/colleague.h"

#include <gtest/gtest.h>

CAsColleague::CAsColleague()
{
    ADD_FAILURE() << "no process changes its user here";
}

CAsColleague::~CAsColleague() = default;

void GiveToColleague(const std::filesystem::path& file)
{
    ADD_FAILURE() << "no file changes its user by a number here: " << file;
}

void GiveToColleagueAndGroup(const std::filesystem::path& file)
{
    GiveToColleague(file);
}
