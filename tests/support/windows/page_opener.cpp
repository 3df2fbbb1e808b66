#include "tests/support/page_opener.h"

#include "platform/encoding.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "platform/loaded_library.h"
#include "platform/program_arguments.h"
#include "platform/whole_file.h"
#include "tests/support/other_program.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <thread>
#include <vector>

using namespace reference_host;

namespace {

constexpr std::chrono::milliseconds kNap(20);
constexpr int kMostNaps = 1500; // for a machine that is busy with other things

CString OwnProgram()
{
    static const char here = 0;
    return CLoadedLibrary(&here).File().native();
}

std::optional<std::string> ReadIfThere(const CString& path)
{
    try {
        return ReadWholeFile(path);
    } catch (const CFileException&) {
        return std::nullopt;
    }
}

/// What this test program does in the place of one that opens pages: its environment tells it to
/// run this alone.
TEST(DISABLED_Other, OpensPage)
{
    const std::vector<CString> arguments = ProgramArguments(0, nullptr);
    const std::string first = arguments.empty() ? "" : Utf8FromWide(arguments.front());
    WriteWholeFile(PathOfOther(), std::to_string(arguments.size()) + '|' + first);
}

} // namespace

const char* const CPageOpener::kOddFolder = "con spazi; %PATH% & $(false) 'e' ^altro";

CPageOpener::CPageOpener(const CTempFolder& folder)
    : m_program(kSettingHelpProgram, OwnProgram()), m_pipe(-1)
{
    SetSystemEnvironment(L"RADSEL_OTHER_PATH", folder.Path("opened"));
    SetSystemEnvironment(L"GTEST_FILTER", L"DISABLED_Other.OpensPage");
    SetSystemEnvironment(L"GTEST_ALSO_RUN_DISABLED_TESTS", L"1");
}

CPageOpener::~CPageOpener()
{
    SetSystemEnvironment(L"GTEST_FILTER", std::nullopt);
    SetSystemEnvironment(L"GTEST_ALSO_RUN_DISABLED_TESTS", std::nullopt);
}

std::string CPageOpener::WaitForPage() const
{
    for (int i = 0; i < kMostNaps; ++i) {
        if (const auto told = ReadIfThere(PathOfOther())) {
            return *told;
        }
        std::this_thread::sleep_for(kNap);
    }
    return {};
}

bool CPageOpener::HasLeftAChild()
{
    return false;
}
