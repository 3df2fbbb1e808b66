#include "platform/descriptor.h"
#include "platform/encoding.h"
#include "platform/exception.h"
#include "platform/file.h"
#include "platform/lock_file.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "platform/whole_file.h"
#include "tests/support/colleague.h"
#include "tests/support/file_size_limit.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <iterator>
#include <string>

#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kCreate = CFile::modeCreate | CFile::modeWrite;

/// What files are where each belongs to a user and a group, a process has limits, and names that
/// differ in case stand side by side.
class PosixFileTest : public ::testing::Test
{
protected:
    CTempFolder m_folder;
};

struct stat StatusOf(const fs::path& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

TEST_F(PosixFileTest, ReplacingKeepsPermissionsOwnerGroupAndLinks)
{
    m_folder.WriteBytes("real.txt", "old");
    const fs::path real = m_folder.Root() / "real.txt";
    const fs::path link = m_folder.Root() / "link.txt";
    fs::permissions(real, fs::perms::owner_all);
    fs::create_symlink("real.txt", link);
    GiveToColleagueAndGroup(real);
    const struct stat before = StatusOf(real);
    WriteWholeFile(TextFromPath(link), "from the administrator");
    const struct stat after = StatusOf(real);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(m_folder.ReadBytes("real.txt"), "from the administrator");
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
}

TEST_F(PosixFileTest, LocksLeadNowhereElseAndOnesOwnNobodyElseOpens)
{
    const fs::path file = m_folder.Root() / "a.lock";
    CloseDescriptor(OpenOwnLockFile(file));
    EXPECT_EQ(StatusOf(file).st_mode & ALLPERMS, mode_t(S_IRUSR | S_IWUSR));

    const fs::path link = m_folder.Root() / "b.lock";
    fs::create_symlink("c.lock", link);
    bool writable = true;
    EXPECT_LT(OpenLockFile(link, writable), 0);
    EXPECT_EQ(errno, ELOOP);
    EXPECT_FALSE(writable || fs::exists(m_folder.Root() / "c.lock"));
}

TEST_F(PosixFileTest, ABackslashInTheNameOfAFolderStaysWhereThePathIsTheSystems)
{
    m_folder.WriteBytes("a\\b/page.html", "");
    const fs::path page = fs::canonical(m_folder.Root()) / "a\\b" / "page.html";
    fs::create_directory_symlink("a\\b", m_folder.Root() / "link");
    std::error_code error;
    EXPECT_EQ(FollowLinks(page, error), page);
    EXPECT_EQ(FollowLinks(m_folder.Root() / "link" / "page.html", error), page);
    EXPECT_FALSE(error);
    EXPECT_EQ(FollowLinks({}, error), fs::path());
}

TEST_F(PosixFileTest, AWritableFileIsWrittenInPlaceWhereNoNeighbourCanBeItsHeir)
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
        WriteWholeFile(m_folder.Path("closed/list.txt"), "new");
        // Here a neighbour can be made, but not given to the owner of the file.
        WriteWholeFile(m_folder.Path("open/list.txt"), "new");
        CFile dropped(m_folder.Path("closed/list.txt"), kCreate);
        dropped.Write("half of", 7);
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
                file.Write("longer than the disk", 20);
                file.Close();
            },
            CFileException);
    }
    EXPECT_EQ(m_folder.ReadBytes("closed/list.txt"), "new") << "a full disk leaves the old content";
    fs::permissions(closed, fs::perms::owner_all);
}

// The sanitizer looks at memory through a pipe and takes sound objects for broken ones while there
// are no descriptors, so that its build leaves this out.
#ifndef __SANITIZE_ADDRESS__
TEST_F(PosixFileTest, AFileThatCannotBeLookedForIsNotAMissingOne)
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

TEST_F(PosixFileTest, OfNamesThatDifferInCaseTheExactOneGoesFirst)
{
    m_folder.WriteBytes("heizung.txt", "lower");
    m_folder.WriteBytes("HEIZUNG.TXT", "upper");
    EXPECT_EQ(ReadWholeFile(m_folder.Path("heizung.txt")), "lower");
    EXPECT_EQ(ResolvePath(m_folder.Path("Heizung.TXT")).filename(), "HEIZUNG.TXT")
        << "then the first in alphabetical order";
}

TEST(PosixEncoding, WhatIsNoCodePointHasAReplacement)
{
    EXPECT_EQ(Utf16FromWide(CString(1, wchar_t{0x110000})), u"\uFFFD");
}

/// Some libraries know few of them as conditions of POSIX's, and call the others the system's own.
TEST(PosixErrors, AreErrnosToTheLast)
{
    for (const int error : {ENOENT, ENOSPC, EDQUOT, ESTALE}) {
        const std::error_code code(error, std::system_category());
        EXPECT_EQ(ErrnoOf(code), error);
        EXPECT_EQ(ReasonOf(code), ReasonOf(error));
        EXPECT_EQ(IsDiskFull(ErrnoOf(code)), error == ENOSPC || error == EDQUOT);
    }
}

} // namespace
