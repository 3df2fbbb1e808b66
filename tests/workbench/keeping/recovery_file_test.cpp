#include "workbench/keeping/recovery_file.h"

#include "platform/exception.h"
#include "tests/src/platform/thrown.h"
#include "tests/support/temp_folder.h"
#include "tools/make_building_samples.h"
#include "workbench/building/building_json.h"
#include "workbench/building/json_fields.h"

#include <gtest/gtest.h>

#include <csignal>
#include <ctime>

#include <sys/wait.h>
#include <unistd.h>

namespace workbench {

namespace {

class RecoveryFileTest : public testing::Test
{
protected:
    /// Bytes of all files that hold work, whatever they are called now.
    std::vector<std::string> Kept() const
    {
        std::vector<std::string> kept;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Root())) {
            if (entry.path().extension() != ".lock") {
                kept.push_back(m_folder.ReadBytes(entry.path().filename()));
            }
        }
        std::sort(kept.begin(), kept.end());
        return kept;
    }

    CTempFolder m_folder;
    const CBuilding m_building = MakeLargeBuilding(3);
};

} // namespace

TEST_F(RecoveryFileTest, WorkOfAKilledProgramComesBack)
{
    const std::time_t before = std::time(nullptr);
    const CString folder = m_folder.Path("posto/di lavoro");
    const pid_t child = fork();
    if (child == 0) {
        const CRecoveryFile file(folder);
        file.Write(L"/case/città.json", L"1234", m_building);
        raise(SIGKILL);
    }
    waitpid(child, nullptr, 0);

    const CRecoveryFile own(folder);
    const auto left = own.TakeLeft();
    ASSERT_EQ(left.size(), 1u);
    const CRecoveryFile& file = *left.front();
    const auto recovery = file.Read();
    ASSERT_TRUE(recovery);
    EXPECT_EQ(recovery->strPath, L"/case/città.json");
    EXPECT_EQ(recovery->strFingerprint, L"1234");
    EXPECT_GE(recovery->nTime, before);
    EXPECT_LE(recovery->nTime, std::time(nullptr));
    EXPECT_EQ(FormatBuilding(recovery->building), FormatBuilding(m_building));

    file.Remove();
    EXPECT_FALSE(file.Read());
    EXPECT_NO_THROW(file.Remove());
    EXPECT_TRUE(CRecoveryFile(folder).TakeLeft().empty());
}

TEST_F(RecoveryFileTest, RunningProgramsKeepOutOfEachOthersWay)
{
    const CRecoveryFile first(m_folder.Path());
    first.Write(L"first", {}, m_building);
    for (const wchar_t* const path : {L"second", L"third"}) {
        const CRecoveryFile crashed(m_folder.Path());
        crashed.Write(path, {}, m_building);
    }
    const CRecoveryFile next(m_folder.Path());
    EXPECT_FALSE(next.Read());
    const auto left = next.TakeLeft();
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0]->Read().value_or(CRecovery()).strPath, L"second");
    EXPECT_EQ(left[1]->Read().value_or(CRecovery()).strPath, L"third");
    EXPECT_TRUE(first.TakeLeft().empty()) << "another program has them";
    EXPECT_EQ(first.Read().value_or(CRecovery()).strPath, L"first");
}

TEST_F(RecoveryFileTest, WhatCannotBeReadIsKeptAside)
{
    const CRecoveryFile file(m_folder.Path());
    file.Write({}, {}, m_building);
    const std::string good = m_folder.ReadBytes("recupero-1.json");
    std::string later = good;
    later.replace(later.find(": 1"), 3, ": 2");
    std::string undated = good;
    undated.replace(undated.find('T'), 1, "!");
    std::string broken = good;
    broken.replace(broken.find("\"floors\""), 8, "\"flors\"");

    std::vector<std::string> damaged = {"", good.substr(0, 500), later, undated, broken};
    for (const std::string& bytes : damaged) {
        m_folder.WriteBytes("recupero-1.json", bytes);
        const CString message = MessageOf<CContentException>([&] { file.Read(); });
        EXPECT_NE(message.find(m_folder.Path("recupero-1.json: ")), CString::npos);
        EXPECT_NE(message.find(L"recupero-1.json.illeggibile-"), CString::npos);
        EXPECT_FALSE(file.Read());
    }
    std::sort(damaged.begin(), damaged.end());
    EXPECT_EQ(Kept(), damaged);
}

TEST_F(RecoveryFileTest, WhatCannotBeLookedAtIsNotTakenForNothing)
{
    const auto number = [&](int i) {
        return m_folder.Root() / ("recupero-" + std::to_string(i) + ".json");
    };
    std::filesystem::create_symlink(number(1), number(1)); // ends in no file, but in an error
    std::filesystem::create_directory(number(2));
    const CRecoveryFile own(m_folder.Path());
    own.Write(L"mine", {}, m_building);
    EXPECT_TRUE(std::filesystem::is_symlink(number(1)));
    EXPECT_TRUE(std::filesystem::is_regular_file(number(3)));
    const auto left = own.TakeLeft();
    ASSERT_EQ(left.size(), 2u);
    for (const auto& file : left) {
        const CString message = MessageOf<CFileException>([&] { file->Read(); });
        EXPECT_NE(message.find(L"recupero-"), CString::npos);
    }
    EXPECT_TRUE(std::filesystem::is_symlink(number(1)));
    EXPECT_TRUE(std::filesystem::is_directory(number(2)));
}

TEST_F(RecoveryFileTest, AFolderThatCannotBeUsedIsNamed)
{
    m_folder.WriteBytes("file", "");
    for (const CString& folder : {m_folder.Path("file"), CString(L"/proc/posto")}) {
        const CString message = MessageOf<CFileException>([&] { CRecoveryFile file(folder); });
        EXPECT_NE(message.find(folder), CString::npos);
    }
}

} // namespace workbench
