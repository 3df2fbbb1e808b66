#include "platform/descriptor.h"
#include "platform/loaded_library.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "platform/temporary_file.h"
#include "platform/temporary_places.h"
#include "platform/whole_file.h"
#include "platform/windows/handle.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <exception>
#include <string>
#include <vector>

#include <io.h>

namespace fs = std::filesystem;

namespace {

TEST(WindowsLibrary, AFunctionOfAnotherOneIsFoundBehindTheJumpToIt)
{
    const CLoadedLibrary own(reinterpret_cast<const void*>(&std::terminate));
    const CLoadedLibrary others(&std::terminate);
    EXPECT_EQ(own.File().extension(), L".exe") << "where the jump stands";
    EXPECT_EQ(others.File().filename(), L"libstdc++-6.dll");
}

TEST(WindowsPath, ALongNameOpensInTheSystemsForm)
{
    const CTempFolder folder;
    fs::path deep = L"\\\\?\\" + fs::path(folder.Root()).make_preferred().native();
    for (int i = 0; i < 10; ++i) {
        deep /= std::wstring(30, L'a');
        ASSERT_NE(CreateDirectoryW(deep.c_str(), nullptr), 0);
    }
    // As a user types it, and as the system tells it of a file on a drive of another machine.
    const CString typed = (deep / "a.txt").native().substr(4);
    WriteWholeFile(typed, "long");
    WriteWholeFile(typed, "longer");
    EXPECT_EQ(ReadWholeFile(typed), "longer");
    std::error_code error;
    const fs::path found = FindFile(typed, error);
    EXPECT_EQ(found.native().substr(0, 4), L"\\\\?\\");
    EXPECT_NE(FindFile(folder.Path(), error).native().substr(0, 4), L"\\\\?\\");
    // The library does not remove what lies so deep.
    EXPECT_NE(DeleteFileW(found.c_str()), 0);
    for (; RemoveDirectoryW(deep.c_str()) != 0; deep = deep.parent_path()) {
    }
    EXPECT_FALSE(folder.Exists({}));
}

TEST(WindowsTemporaryFile, WithoutADescriptorNothingIsLeftBehind)
{
    const CTempFolder folder;
    std::vector<int> taken;
    for (int i = 0; i >= 0;) {
        i = _open("NUL", 0);
        if (i >= 0) {
            taken.push_back(i);
        }
    }
    fs::path place;
    EXPECT_LT(OpenTemporary(folder.Root() / "a.txt", place), 0);
    for (const int descriptor : taken) {
        _close(descriptor);
    }
    EXPECT_TRUE(place.empty());
    EXPECT_TRUE(fs::is_empty(folder.Root()));
}

TEST(WindowsTemporaryFile, AnotherNameOfAFileIsNoLeftover)
{
    const CTempFolder folder;
    folder.WriteBytes("mine.txt", "mine");
    const fs::path place = folder.Root() / ".a.txt.radsel-tmp";
    ASSERT_NE(CreateHardLinkW(place.c_str(), (folder.Root() / "mine.txt").c_str(), nullptr), 0);
    RemoveLeftover(place);
    EXPECT_LT(TakePlace(place), 0);
    EXPECT_TRUE(fs::exists(place));
    fs::remove(folder.Root() / "mine.txt");
    const int descriptor = TakePlace(place);
    EXPECT_GE(descriptor, 0);
    CloseDescriptor(descriptor);
}

TEST(WindowsError, WhatTheLibraryHasNoNumberForIsToldByTheSystem)
{
    const std::error_code odd(ERROR_USER_MAPPED_FILE, std::system_category());
    const CString reason = ReasonOf(odd);
    EXPECT_EQ(reason, SystemReasonOf(ERROR_USER_MAPPED_FILE));
    EXPECT_FALSE(reason.empty());
    EXPECT_EQ(ReasonOf(ErrnoOf(odd)), reason);
    EXPECT_NE(reason, ReasonOf(EIO));
    EXPECT_EQ(ErrnoOf({ERROR_FILE_NOT_FOUND, std::system_category()}), ENOENT);
    EXPECT_EQ(ErrnoOf({}), 0);
}

} // namespace
