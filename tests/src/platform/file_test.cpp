#include "platform/file.h"

#include "platform/exception.h"
#include "platform/path.h"
#include "platform/whole_file.h"
#include "tests/support/colleague.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/temp_folder.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <string>
#include <tuple>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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
            names.push_back(entry.path().filename().string());
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

struct stat StatusOf(const fs::path& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

TEST_F(FileTest, ReplacingKeepsPermissionsOwnerGroupAndLinks)
{
    m_folder.WriteBytes("real.txt", "old");
    const fs::path real = m_folder.Root() / "real.txt";
    const fs::path link = m_folder.Root() / "link.txt";
    fs::permissions(real, fs::perms::owner_all);
    fs::create_symlink("real.txt", link);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(real.c_str(), kColleagueId, kColleagueId), 0);
    }
    const struct stat before = StatusOf(real);
    Replace(TextFromPath(link), "from the administrator");
    const struct stat after = StatusOf(real);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(m_folder.ReadBytes("real.txt"), "from the administrator");
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
}

TEST_F(FileTest, AWritableFileIsWrittenInPlaceWhereNoNeighbourCanBeItsHeir)
{
    m_folder.WriteBytes("closed/list.txt", "a long old content");
    m_folder.WriteBytes("open/list.txt", "a long old content");
    const fs::path closed = m_folder.Root() / "closed";
    const fs::path open = m_folder.Root() / "open";
    for (const fs::path& folder : {closed, open}) {
        fs::permissions(folder / "list.txt", fs::perms(0666));
    }
    fs::permissions(m_folder.Root(), fs::perms(0777));
    fs::permissions(closed, fs::perms(0555));
    fs::permissions(open, fs::perms(0777));
    const ino_t inode = StatusOf(closed / "list.txt").st_ino;
    const uid_t owner = StatusOf(open / "list.txt").st_uid;
    {
        const CAsColleague colleague;
        Replace(m_folder.Path("closed/list.txt"), "new");
        // Here a neighbour can be made, but not given to the owner of the file.
        Replace(m_folder.Path("open/list.txt"), "new");
        CFile dropped(m_folder.Path("closed/list.txt"), kCreate);
        Put(dropped, "half of");
    }
    EXPECT_EQ(m_folder.ReadBytes("closed/list.txt"), "new");
    EXPECT_EQ(m_folder.ReadBytes("open/list.txt"), "new");
    EXPECT_EQ(StatusOf(closed / "list.txt").st_ino, inode);
    EXPECT_EQ(StatusOf(open / "list.txt").st_uid, owner);
    EXPECT_EQ(std::distance(fs::directory_iterator(open), fs::directory_iterator()), 1);
    {
        const CAsColleague colleague;
        const CFileSizeLimit limit(4);
        CFile file(m_folder.Path("closed/list.txt"),
                   CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
        EXPECT_THROW(
            {
                Put(file, "longer than the disk");
                file.Close();
            },
            CFileException);
    }
    EXPECT_EQ(m_folder.ReadBytes("closed/list.txt"), "new") << "a full disk leaves the old content";
    fs::permissions(closed, fs::perms::owner_all);
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

// The sanitizer looks at memory through a pipe and takes sound objects for broken ones while there
// are no descriptors, so that its build leaves this out.
#ifndef __SANITIZE_ADDRESS__
TEST_F(FileTest, AFileThatCannotBeLookedForIsNotAMissingOne)
{
    m_folder.WriteBytes("cmbdata.txt", "kept");
    const CString path = m_folder.Path("CmbData.txt");
    for (const unsigned flags : {static_cast<unsigned>(CFile::modeRead), kCreate}) {
        CFile file;
        rlimit before = {};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none = {0, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
        EXPECT_FALSE(file.Open(path, flags));
        setrlimit(RLIMIT_NOFILE, &before);
        EXPECT_EQ(file.GetOpenError(), EMFILE);
    }
    EXPECT_TRUE(CFile().Open(path, CFile::modeRead));
}
#endif

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

TEST_F(FileTest, WritersOfOneTargetKeepApartAndWhatKilledOnesLeaveGoesWithTheNext)
{
    m_folder.WriteBytes("a.txt", "old");
    CFile alive(m_folder.Path("a.txt"), kCreate);
    const pid_t child = fork();
    if (child == 0) {
        CFile first(m_folder.Path("a.txt"), kCreate);
        CFile second(m_folder.Path("a.txt"), kCreate);
        Put(first, "half of a long new content");
        raise(SIGKILL);
    }
    waitpid(child, nullptr, 0);
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

    m_folder.WriteBytes("heizung.txt", "lower");
    m_folder.WriteBytes("HEIZUNG.TXT", "upper");
    EXPECT_EQ(m_folder.ReadBytes("heizung.txt"), "lower") << "the exact name goes first";
    EXPECT_EQ(ResolvePath(m_folder.Path("Heizung.TXT")).filename(), "HEIZUNG.TXT")
        << "then the first in alphabetical order";

    Replace(m_folder.Path("heizung/GRÖßE.txt"), "new");
    EXPECT_EQ(m_folder.ReadBytes("Heizung/Größe.TXT"), "new") << "creating meets the same file";

    EXPECT_EQ(JoinPath(L"C:\\x", L"y"), L"C:\\x\\y");
    EXPECT_EQ(JoinPath(L"C:\\x\\", L"y"), L"C:\\x\\y");
}

} // namespace
