#include "platform/file_limits.h"

#include "common/platzierung_datei.h"
#include "host/host_catalog.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "reference_host/catalog/catalogue_errors.h"
#include "selection/heizsysteme.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"
#include "tests/support/test_liste.h"
#include "workbench/batch/connection_list.h"
#include "workbench/building/json_fields.h"
#include "workbench/schedule/valve_selection.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

using namespace reference_host;

namespace workbench {

namespace {

const std::string kValves = "010;200410;Prova;20240301;\n100;1;Valvole;\n110;1;Serie;\n"
                            "700;1;2;15;0.88;10;120;600;;;;1;;\n"
                            "800;020000000000000000000000000000000100;PT-15;;;Termostatica;\n";

/// Files of which all but the beginning is a hole, so that they take no room.
class FileLimits : public testing::Test
{
protected:
    /// A file of this content that is one byte too large.
    CString Make(const std::string& name, const std::string& content, std::uint64_t limit) const
    {
        m_folder.WriteBytes(name, content);
        std::filesystem::resize_file(m_folder.Root() / name, limit + 1);
        return m_folder.Path(name);
    }

    std::uint64_t SizeOf(const std::string& name) const
    {
        return std::filesystem::file_size(m_folder.Root() / name);
    }

    CTempFolder m_folder;
};

} // namespace

TEST_F(FileLimits, ALargerFileIsRefusedByNameAndLimit)
{
    const CSettingOverride valves(kSettingVEDir, m_folder.Path());
    const CString valveFile = Make("Limite/ha.tga", kValves, kLargestValveFile);
    const CValveKey key = {L"Limite", L"020000000000000000000000000000000100"};
    const CValveOutcome valve = FetchValves({key, {}}).vorlauf;
    EXPECT_EQ(valve.status, ValveStatus::badFile);
    EXPECT_EQ(valve.strNote, valveFile + L": Il file è troppo grande: il limite è di 512 MB.");

    const CSettingOverride catalogues(kSettingHKDir, m_folder.Path());
    Make("Limite/hk.tga", "", kLargestCatalogue);
    HK_VDI3805_ART* kinds = nullptr;
    EXPECT_LT(ReadVdiFile(L"Limite", &kinds, 0.0), 0);
    const auto catalogue = GetCatalogueError(L"Limite");
    ASSERT_TRUE(catalogue);
    EXPECT_EQ(catalogue->strMessage, L"Il file è troppo grande: il limite è di 16 MB.");

    try {
        ReadJsonFile(Make("casa.json", "{}", kLargestBuilding));
        ADD_FAILURE() << "was read";
    } catch (const CContentException& error) {
        EXPECT_EQ(error.GetErrorMessage(),
                  m_folder.Path("casa.json") + L": Il file è troppo grande: il limite è di 64 MB.");
    }

    std::ostringstream out;
    std::ostringstream err;
    const CString list = Make("Vent.txt", "[A]\n", kLargestList);
    EXPECT_EQ(ListConnections(list, out, err), ExitCode::badCatalogue);
    EXPECT_EQ(WideFromUtf8(err.str()),
              list + L": Il file è troppo grande: il limite è di 16 MB.\n");
}

TEST_F(FileLimits, WhatIsTooLargeToBeReadIsNotReplaced)
{
    const CSettingOverride root(kSettingServerPath, m_folder.Path());
    const CSettingOverride local(kSettingLocalPath, m_folder.Path());
    const CSettingOverride name(kSettingWinposFile, L"winpos.txt");
    Make("winpos.txt", "A|1|2|3|4|255|\r\n", kLargestPlacementFile);
    CRect rect;
    EXPECT_FALSE(LesePlatzierung(L"A", rect, nullptr));
    SchreibePlatzierung(L"B", {1, 2, 3, 4}, 255);
    EXPECT_EQ(SizeOf("winpos.txt"), kLargestPlacementFile + 1);

    Make("HEIZUNG/CmbData.txt", "[A]\r\na|\r\n", kLargestList);
    EXPECT_FALSE(ListeSchreiben(L"A", CTestListe({L"b"}), kGewerkHeizung));
    EXPECT_EQ(SizeOf("HEIZUNG/CmbData.txt"), kLargestList + 1);

    m_folder.WriteBytes("casa.json", "old");
    EXPECT_THROW(WriteJsonBytes(m_folder.Path("casa.json"), std::string(kLargestBuilding + 1, ' ')),
                 CFileException);
    EXPECT_EQ(m_folder.ReadBytes("casa.json"), "old");
}

} // namespace workbench
