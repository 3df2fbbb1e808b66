#include "host/host_catalog.h"
#include "reference_host/catalog/help_pages.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <vector>

using namespace reference_host;

namespace {

TEST(HelpOnWindows, APageThatNoProgramOpensIsToldWithItsPlace)
{
    const CTempFolder folder;
    const CSettingOverride helpFolder(kSettingHelpFolder, folder.Path());
    folder.WriteBytes("18003.pdf", "");
    std::vector<CString> told;
    SetHelpTeller([&](const CString& text) { told.push_back(text); });
    for (const char* const name : {"missing", "18003.pdf"}) {
        const CSettingOverride program(kSettingHelpProgram, folder.Path(name));
        ShowPDF(18003, 100);
    }
    SetHelpTeller({});
    EXPECT_EQ(told.size(), 2U);
    for (const CString& text : told) {
        EXPECT_NE(text.find(L"18003.pdf"), CString::npos);
    }
}

} // namespace
