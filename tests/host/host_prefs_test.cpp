#include "host/host_prefs.h"
#include "support/setting_override.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

namespace {

/// Sets or removes a variable of the real environment, which is the one that the host reads.
class CEnvironmentVariable
{
public:
    CEnvironmentVariable(const char* name, const char* value) : m_name(name)
    {
        if (const char* before = std::getenv(name)) {
            m_before = before;
        }
        Set(value);
    }
    ~CEnvironmentVariable() { Set(m_before ? m_before->c_str() : nullptr); }
    CEnvironmentVariable(const CEnvironmentVariable&) = delete;
    CEnvironmentVariable& operator=(const CEnvironmentVariable&) = delete;

private:
    void Set(const char* value) const
    {
        if (value != nullptr) {
            setenv(m_name, value, 1);
        } else {
            unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

const std::string kFile = "radsel/settings.txt";
const std::string kVersionLine = "radsel-settings 1\n";

class HostSettings : public ::testing::Test
{
protected:
    CTempFolder m_folder;
    CEnvironmentVariable m_config{"XDG_CONFIG_HOME", m_folder.Root().c_str()};
    CEnvironmentVariable m_catalogues{"RADSEL_HKDIR", nullptr};
};

TEST_F(HostSettings, AStoredValueReadsBack)
{
    EXPECT_EQ(GetHostSetting(L"Ordner", L"fallback"), L"fallback");
    const CString values[] = {L"C:\\Kataloge\\Heizk\u00F6rper", L"", L"a=b", L" \U0001F525 "};
    for (const CString& value : values) {
        EXPECT_TRUE(StoreHostSetting(L"Ordner", value));
        EXPECT_EQ(GetHostSetting(L"Ordner", L"fallback"), value);
    }
    EXPECT_TRUE(StoreHostSetting(L"Ordner2", L"other"));
    EXPECT_EQ(GetHostSetting(L"Ordner", L"fallback"), values[3]);
    EXPECT_EQ(GetHostSetting(L"ordner", L"fallback"), L"fallback");
}

TEST_F(HostSettings, AnOverrideWinsAndIsNeverWritten)
{
    ASSERT_TRUE(StoreHostSetting(L"Key", L"stored"));
    const std::string before = m_folder.ReadBytes(kFile);
    {
        const CSettingOverride override(L"Key", L"override");
        EXPECT_EQ(GetHostSetting(L"Key", L""), L"override");
        EXPECT_EQ(m_folder.ReadBytes(kFile), before);
    }
    EXPECT_EQ(GetHostSetting(L"Key", L""), L"stored");
}

TEST_F(HostSettings, StoringKeepsEveryLineItDoesNotKnow)
{
    m_folder.WriteBytes(kFile, kVersionLine + "Other=\xFF\xC3\n# note\r\n\nKey=old\nKey2=x\nlast");
    ASSERT_TRUE(StoreHostSetting(L"Key", L"new"));
    ASSERT_TRUE(StoreHostSetting(L"Added", L"1"));
    EXPECT_EQ(m_folder.ReadBytes(kFile),
              kVersionLine + "Other=\xFF\xC3\n# note\n\nKey=new\nKey2=x\nlast\nAdded=1\n");
}

TEST_F(HostSettings, ADamagedFileReadsAsEmptyAndIsKeptAsideWhenReplaced)
{
    for (const std::string damaged : {"", "Key=1\n", "\x89PNG\r\n\x1A\n", "radsel-set"}) {
        SCOPED_TRACE(::testing::PrintToString(damaged));
        m_folder.WriteBytes(kFile, damaged);
        EXPECT_EQ(GetHostSetting(L"Key", L"fallback"), L"fallback");
        EXPECT_TRUE(StoreHostSetting(L"Key", L"2"));
        EXPECT_EQ(GetHostSetting(L"Key", L"fallback"), L"2");
        EXPECT_EQ(m_folder.ReadBytes(kFile + ".damaged"), damaged);
    }
}

TEST_F(HostSettings, AFileOfALaterVersionReadsAsEmptyAndIsNotReplaced)
{
    const std::string later = "radsel-settings 2\nKey=1\n";
    m_folder.WriteBytes(kFile, later);
    EXPECT_EQ(GetHostSetting(L"Key", L"fallback"), L"fallback");
    EXPECT_FALSE(StoreHostSetting(L"Key", L"2"));
    EXPECT_EQ(m_folder.ReadBytes(kFile), later);
}

TEST_F(HostSettings, KeysAndValuesThatWouldBreakTheFileAreRefused)
{
    EXPECT_FALSE(StoreHostSetting(L"a=b", L"1"));
    EXPECT_FALSE(StoreHostSetting(L"a\nb", L"1"));
    EXPECT_FALSE(StoreHostSetting(L"a\rb", L"1"));
    EXPECT_FALSE(StoreHostSetting(L"a", L"1\nb=2"));
    EXPECT_FALSE(StoreHostSetting(L"a", L"1\r"));
    EXPECT_FALSE(m_folder.Exists(kFile));
}

TEST_F(HostSettings, AFileThatCannotBeWrittenStaysAsItWas)
{
    m_folder.WriteBytes(kFile, kVersionLine + "Key=1\n");
    std::filesystem::permissions(m_folder.Root() / kFile, std::filesystem::perms::owner_read);
    EXPECT_FALSE(StoreHostSetting(L"Key", L"2"));
    EXPECT_EQ(GetHostSetting(L"Key", L""), L"1");

    // A file where the folder should be.
    m_folder.WriteBytes("home", "");
    const CEnvironmentVariable config("XDG_CONFIG_HOME", (m_folder.Root() / "home").c_str());
    EXPECT_FALSE(StoreHostSetting(L"Key", L"2"));
    EXPECT_EQ(GetHostSetting(L"Key", L"fallback"), L"fallback");
}

TEST_F(HostSettings, WithoutAConfigurationFolderTheHomeFolderHoldsOne)
{
    const CTempFolder home;
    const CEnvironmentVariable homeVariable("HOME", home.Root().c_str());
    for (const char* config : {static_cast<const char*>(nullptr), "", "relative/folder"}) {
        const CEnvironmentVariable configVariable("XDG_CONFIG_HOME", config);
        EXPECT_TRUE(StoreHostSetting(L"Key", L"1"));
        EXPECT_EQ(home.ReadBytes(".config/" + kFile), kVersionLine + "Key=1\n");
        std::filesystem::remove_all(home.Root() / ".config");
    }
    const CEnvironmentVariable noConfig("XDG_CONFIG_HOME", nullptr);
    const CEnvironmentVariable noHome("HOME", nullptr);
    EXPECT_FALSE(StoreHostSetting(L"Key", L"1"));
    EXPECT_EQ(GetHostSetting(L"Key", L"fallback"), L"fallback");
}

TEST_F(HostSettings, TheCatalogueFolderComesFromTheSettingThenTheEnvironment)
{
    EXPECT_EQ(GetHKDir(), L"");
    const CEnvironmentVariable catalogues("RADSEL_HKDIR", "/catalogues");
    EXPECT_EQ(GetHKDir(), L"/catalogues");
    ASSERT_TRUE(StoreHostSetting(kSettingHKDir, L"D:\\stored"));
    EXPECT_EQ(GetHKDir(), L"D:\\stored");
    const CSettingOverride override(kSettingHKDir, L"override");
    EXPECT_EQ(GetHKDir(), L"override");
}

TEST_F(HostSettings, UnitsAreMetresUntilChosen)
{
    int drawing = -77;
    lmGetDimension2(drawing);
    EXPECT_EQ(drawing, 1);
    EXPECT_EQ(lmGetDimensionUsr(), 1);

    ASSERT_TRUE(StoreHostSetting(kSettingDrawingUnit, L"1000"));
    ASSERT_TRUE(StoreHostSetting(kSettingUserUnit, L"100"));
    lmGetDimension2(drawing);
    EXPECT_EQ(drawing, 1000);
    EXPECT_EQ(lmGetDimensionUsr(), 100);
}

} // namespace
