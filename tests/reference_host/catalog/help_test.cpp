#include "host/host_catalog.h"
#include "reference_host/catalog/help_pages.h"
#include "tests/support/page_opener.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

using namespace reference_host;

namespace {

/// A help folder, and a program that opens its pages.
class Help : public ::testing::Test
{
protected:
    CTempFolder m_folder;
    CSettingOverride m_helpFolder{kSettingHelpFolder, m_folder.Path()};
    CPageOpener m_opener{m_folder};
};

TEST_F(Help, APageIsFoundByItsNumber)
{
    EXPECT_FALSE(FindHelpPage(238));
    m_folder.WriteBytes("238.html", "");
    EXPECT_EQ(FindHelpPage(238), m_folder.Root() / "238.html");
    m_folder.WriteBytes("238.pdf", "");
    EXPECT_EQ(FindHelpPage(238), m_folder.Root() / "238.pdf");
    EXPECT_FALSE(FindHelpPage(23));
    std::filesystem::create_directory(m_folder.Root() / "18003.pdf");
    EXPECT_FALSE(FindHelpPage(18003)) << "a folder is no page";
}

TEST_F(Help, TheOpenerGetsThePageAsItsOneArgumentAndLeavesNoChild)
{
    // Nothing in the name of a folder may reach a shell.
    const std::string folder = CPageOpener::kOddFolder;
    m_folder.WriteBytes(folder + "/18003.pdf", "");
    const CSettingOverride setting(kSettingHelpFolder, m_folder.Path(folder));

    ShowPDF(18003, 100);
    EXPECT_EQ(m_opener.WaitForPage(), "1|" + (m_folder.Root() / folder / "18003.pdf").string());
    EXPECT_FALSE(CPageOpener::HasLeftAChild());
}

TEST_F(Help, APageThatNoProgramOpensIsToldWithItsPlace)
{
    m_folder.WriteBytes("18003.pdf", "");
    m_folder.WriteBytes("desktop", "#!/bin/sh\nexit 3\n"); // has no program for the file
    std::filesystem::permissions(m_folder.Root() / "desktop", std::filesystem::perms::owner_all);
    std::vector<CString> told;
    SetHelpTeller([&](const CString& text) { told.push_back(text); });
    for (const std::string name : {"missing", "18003.pdf", "desktop", "opener"}) {
        OverrideHostSetting(kSettingHelpProgram, m_folder.Path(name));
        ShowPDF(18003, 100);
    }
    EXPECT_EQ(m_opener.WaitForPage(), "1|" + (m_folder.Root() / "18003.pdf").string());
    SetHelpTeller({});
    EXPECT_EQ(told.size(), 3u) << "the last one could be started";
    for (const CString& text : told) {
        EXPECT_NE(text.find(L"PDF"), CString::npos);
        EXPECT_NE(text.find(L"18003.pdf"), CString::npos);
    }
}

} // namespace
