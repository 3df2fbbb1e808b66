#include "common/platzierung_datei.h"

#include "reference_host/prefs/host_settings.h"
#include "tests/support/colleague.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;

namespace {

TEST(PlatzierungDatei, OneThatCannotBeReadIsNotEmptied)
{
    const CTempFolder folder;
    const CSettingOverride local(reference_host::kSettingLocalPath, folder.Path());
    const CSettingOverride name(reference_host::kSettingWinposFile, L"posti.txt");
    std::string places;
    for (int i = 0; i < 1000; ++i) {
        places += "FINESTRA_" + std::to_string(i) + "|1|2|3|4|255|\n";
    }
    folder.WriteBytes("posti.txt", places);
    const fs::path file = folder.Root() / "posti.txt";
    // The colleague may replace his file, but not read it.
    GiveToColleague(file);
    fs::permissions(folder.Root(), fs::perms(0777));
    fs::permissions(file, fs::perms(0222));
    {
        const CAsColleague colleague;
        SchreibePlatzierung(L"FINESTRA_7", {5, 6, 7, 8}, 255);
    }
    fs::permissions(file, fs::perms(0666));
    EXPECT_EQ(folder.ReadBytes("posti.txt"), places);
}

} // namespace
