#pragma once

#include <filesystem>

/// Makes the process a user without special rights for a while, where it is root; elsewhere it
/// stays who it is. A test that needs one needs a system whose files belong to users by numbers.
class CAsColleague
{
public:
    CAsColleague();
    ~CAsColleague();
    CAsColleague(const CAsColleague&) = delete;
    CAsColleague& operator=(const CAsColleague&) = delete;
};

/// Gives him a file, where the process is root; the file keeps its group, or gets his.
void GiveToColleague(const std::filesystem::path& file);
void GiveToColleagueAndGroup(const std::filesystem::path& file);
