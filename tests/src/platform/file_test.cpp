#include "platform/file.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/path.h"
#include "platform/whole_file.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/other_program.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kCreate = CFile::modeCreate | CFile::modeWrite;

class FileTest : public ::testing::Test
{
protected:
    static void Put(CFile& file, const std::string& bytes)
    {
        file.Write(bytes.data(), bytes.size());
    }

    /// Gives a file, new or not, this content.
    static void Replace(const CString& path, const std::string& bytes)
    {
        CFile file(path, kCreate);
        Put(file, bytes);
        file.Close();
    }

    /// Names of all files in the folder: a temporary file left behind would show here.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(ResolvePath(m_folder.Path()))) {
            names.push_back(Utf8FromWide(TextFromPath(entry.path().filename())));
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    CTempFolder m_folder;
};

TEST_F(FileTest, WithoutCloseTheOldFileStays)
{
    m_folder.WriteBytes("a.txt", "old");
    {
        CFile file(m_folder.Path("a.txt"), kCreate);
        Put(file, "half of a new");
    }
    {
        CFile file(m_folder.Path("b.txt"), kCreate);
    }
    EXPECT_EQ(m_folder.ReadBytes("a.txt"), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});
}

TEST_F(FileTest, WhatCannotBeOpenedSaysWhy)
{
    m_folder.WriteBytes("readonly.txt", "kept");
    fs::permissions(ResolvePath(m_folder.Path("readonly.txt")), fs::perms::owner_read);
    const std::tuple<CString, unsigned, CFileException::Cause> cases[] = {
        {L"missing.txt", CFile::modeRead, CFileException::Cause::fileNotFound},
        {L"missing.txt", CFile::modeWrite, CFileException::Cause::fileNotFound},
        {L"no\\folder.txt", kCreate, CFileException::Cause::fileNotFound},
        {L"readonly.txt\\x", kCreate, CFileException::Cause::badPath},
        {L"", CFile::modeRead, CFileException::Cause::fileNotFound},
        {L".", CFile::modeRead, CFileException::Cause::accessDenied},
        {L"", kCreate, CFileException::Cause::fileNotFound},
        {L"readonly.txt", kCreate, CFileException::Cause::accessDenied},
        {L"readonly.txt", CFile::modeReadWrite, CFileException::Cause::accessDenied},
    };
    for (const auto& [name, flags, cause] : cases) {
        const CString path = name.empty() ? name : JoinPath(m_folder.Path(), name);
        EXPECT_FALSE(CFile().Open(path, flags)) << path << ' ' << flags;
        try {
            CFile file(path, flags);
            ADD_FAILURE() << "opened " << path;
        } catch (const CFileException& exception) {
            EXPECT_EQ(exception.GetCause(), cause) << path << ' ' << flags;
            EXPECT_EQ(exception.GetFileName(), path);
        }
    }
    EXPECT_EQ(m_folder.ReadBytes("readonly.txt"), "kept");
    EXPECT_EQ(Names(), std::vector<std::string>{"readonly.txt"});
}

TEST_F(FileTest, AFullDiskLeavesTheOldFile)
{
    m_folder.WriteBytes("a.txt", "old");
    {
        const CFileSizeLimit limit(1000);
        CFile file(m_folder.Path("a.txt"), kCreate);
        Put(file, std::string(900, 'x'));
        try {
            Put(file, std::string(900, 'y'));
            ADD_FAILURE() << "wrote beyond the limit";
        } catch (const CFileException& exception) {
            EXPECT_EQ(exception.GetCause(), CFileException::Cause::diskFull);
        }
    }
    EXPECT_EQ(m_folder.ReadBytes("a.txt"), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});
}

TEST(DISABLED_Other, IsKilledWhileItWrites)
{
    CFile first(PathOfOther(), kCreate);
    CFile second(PathOfOther(), kCreate);
    first.Write("half of a long new content", 26);
    std::_Exit(0);
}

TEST_F(FileTest, WritersOfOneTargetKeepApartAndWhatKilledOnesLeaveGoesWithTheNext)
{
    m_folder.WriteBytes("a.txt", "old");
    CFile alive(m_folder.Path("a.txt"), kCreate);
    EXPECT_TRUE(COtherProgram("IsKilledWhileItWrites", m_folder.Path("a.txt")).Succeeds());
    EXPECT_EQ(m_folder.ReadBytes("a.txt"), "old");
    ASSERT_EQ(Names().size(), 4U);

    Replace(m_folder.Path("a.txt"), "new");
    EXPECT_EQ(m_folder.ReadBytes("a.txt"), "new");
    EXPECT_EQ(Names().size(), 2U) << "what a living writer holds stays";
    Put(alive, "newer");
    alive.Close();
    EXPECT_EQ(m_folder.ReadBytes("a.txt"), "newer");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});
}

TEST_F(FileTest, ExistingFilesAreReadAndChangedInPlace)
{
    m_folder.WriteBytes("a.txt", "abcdef");
    CFile file(m_folder.Path("a.txt"), CFile::modeReadWrite);
    EXPECT_EQ(file.GetLength(), 6U);
    char buffer[10] = {};
    EXPECT_EQ(file.Read(buffer, 3), 3U);
    EXPECT_EQ(file.Read(buffer, sizeof buffer), 3U) << "fewer only at the end";
    file.Seek(1);
    Put(file, "X");
    file.SetLength(4);
    file.Close();
    file.Close();
    EXPECT_EQ(m_folder.ReadBytes("a.txt"), "aXcd");
}

TEST_F(FileTest, AWholeFileIsReadUpToALimit)
{
    const std::string bytes("a\0b\r\n\xff", 6);
    WriteWholeFile(m_folder.Path("a.bin"), bytes);
    EXPECT_EQ(ReadWholeFile(m_folder.Path("a.bin")), bytes);
    EXPECT_EQ(ReadWholeFile(m_folder.Path("a.bin"), 6), bytes);
    EXPECT_EQ(ReadWholeFile(m_folder.Path("a.bin"), 5), std::nullopt);
    EXPECT_EQ(BytesOf(bytes).back(), 0xff);
    EXPECT_THROW(ReadWholeFile(m_folder.Path("b.bin")), CFileException);
}

TEST_F(FileTest, PathsHoldBackslashesAndForgiveCase)
{
    m_folder.WriteBytes("Heizung/Größe.TXT", "x");
    const auto opens = [this](const CString& path) {
        return CFile().Open(JoinPath(m_folder.Path(), path), CFile::modeRead);
    };
    EXPECT_TRUE(opens(L"Heizung\\Größe.TXT"));
    EXPECT_TRUE(opens(L"HEIZUNG\\GRÖßE.txt"));
    EXPECT_TRUE(opens(L"heizung/größe.txt"));
    EXPECT_FALSE(opens(L"HEIZUNG\\GRÖSSE.txt"));

    Replace(m_folder.Path("heizung/GRÖßE.txt"), "new");
    EXPECT_EQ(m_folder.ReadBytes("Heizung/Größe.TXT"), "new") << "creating meets the same file";

    EXPECT_EQ(JoinPath(L"C:\\x", L"y"), L"C:\\x\\y");
    EXPECT_EQ(JoinPath(L"C:\\x\\", L"y"), L"C:\\x\\y");
}

} // namespace
