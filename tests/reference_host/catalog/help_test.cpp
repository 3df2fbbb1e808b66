#include "host/host_catalog.h"
#include "reference_host/catalog/help_pages.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

using namespace reference_host;

namespace {

constexpr int kPatience = 30000; // ms, for a machine that is busy with other things

/// A help folder, and an opener that tells through a pipe which file it was given.
class Help : public ::testing::Test
{
protected:
    Help()
    {
        m_folder.WriteBytes("opener",
                            "#!/bin/sh\nprintf '%s|%s\\n' \"$#\" \"$1\" > '" + PipePath() + "'\n");
        std::filesystem::permissions(m_folder.Root() / "opener", std::filesystem::perms::owner_all);
        mkfifo(PipePath().c_str(), 0600);
        // Opened for both directions, so that the pipe never ends between two writers.
        m_pipe = open(PipePath().c_str(), O_RDWR | O_CLOEXEC);
    }
    ~Help() override { close(m_pipe); }

    std::string PipePath() const { return (m_folder.Root() / "pipe").string(); }
    std::string PagePath(const std::string& name) const
    {
        return (m_folder.Root() / name).string();
    }

    /// What the opener wrote, empty if it was not started.
    std::string WaitForOpener() const
    {
        pollfd ready = {m_pipe, POLLIN, 0};
        char bytes[1024];
        if (poll(&ready, 1, kPatience) != 1) {
            return {};
        }
        const ssize_t count = read(m_pipe, bytes, sizeof bytes);
        return std::string(bytes, count > 0 ? static_cast<std::size_t>(count) : 0);
    }

    CTempFolder m_folder;
    CSettingOverride m_helpFolder{kSettingHelpFolder, m_folder.Path()};
    CSettingOverride m_program{kSettingHelpProgram, m_folder.Path("opener")};
    int m_pipe = -1;
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
    const std::string folder = "con spazi; $(false) 'e' \"altro\"";
    m_folder.WriteBytes(folder + "/18003.pdf", "");
    const CSettingOverride setting(kSettingHelpFolder, m_folder.Path(folder));

    ShowPDF(18003, 100);
    EXPECT_EQ(WaitForOpener(), "1|" + PagePath(folder + "/18003.pdf") + "\n");
    errno = 0;
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
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
    EXPECT_EQ(WaitForOpener(), "1|" + PagePath("18003.pdf") + "\n");
    SetHelpTeller({});
    EXPECT_EQ(told.size(), 3u) << "the last one could be started";
    for (const CString& text : told) {
        EXPECT_NE(text.find(L"PDF"), CString::npos);
        EXPECT_NE(text.find(L"18003.pdf"), CString::npos);
    }
}

} // namespace
