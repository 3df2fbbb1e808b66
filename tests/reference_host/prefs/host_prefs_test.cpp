#include "frame/hkauswahl_uebergabe.h"
#include "host/host_base.h"
#include "host/host_prefs.h"
#include "platform/format.h"
#include "tests/support/environment_variable.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <utility>

using namespace reference_host;

namespace {

const std::string kFile = "radsel/settings.txt";
const std::string kVersionLine = "radsel-settings 1\n";

class HostSettings : public ::testing::Test
{
protected:
    CTempFolder m_folder;
    CEnvironmentVariable m_config{kSettingsVariable, m_folder.Root().string().c_str()};
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
    const CEnvironmentVariable config(kSettingsVariable,
                                      (m_folder.Root() / "home").string().c_str());
    EXPECT_FALSE(StoreHostSetting(L"Key", L"2"));
    EXPECT_EQ(GetHostSetting(L"Key", L"fallback"), L"fallback");
}

TEST_F(HostSettings, WithoutAConfigurationFolderTheHomeFolderHoldsOne)
{
    const CTempFolder home;
    const CEnvironmentVariable homeVariable("HOME", home.Root().string().c_str());
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
    EXPECT_EQ(GetHKDir(false), L"");
    const CEnvironmentVariable catalogues("RADSEL_HKDIR", "/catalogues");
    EXPECT_EQ(GetHKDir(false), L"/catalogues");
    ASSERT_TRUE(StoreHostSetting(kSettingHKDir, L"D:\\stored"));
    EXPECT_EQ(GetHKDir(false), L"D:\\stored");
    const CSettingOverride override(kSettingHKDir, L"override");
    EXPECT_EQ(GetHKDir(false), L"override");
}

TEST_F(HostSettings, EachPreferenceHasADefaultAndAKeyOfItsOwn)
{
    const auto number = [](void (*get)(int&)) {
        int value = -77;
        get(value);
        return FormatInt(value);
    };
    const auto flag = [](bool (*get)(bool&)) {
        bool on = true;
        EXPECT_TRUE(get(on));
        return FormatInt(on ? 1 : 0);
    };
    const struct
    {
        const wchar_t *key, *before, *stored;
        std::function<CString()> get;
    } preferences[] = {
        {kSettingDrawingUnit, L"1", L"1000", [&] { return number(lmGetDimension2); }},
        {kSettingUserUnit, L"1", L"100", [] { return FormatInt(lmGetDimensionUsr()); }},
        {kSettingAllowSkin, L"0", L"1", [&] { return flag(lmGetAllowLumoSkin); }},
        {kSettingEnterAsTab, L"0", L"1", [&] { return flag(lmGetAllowEnterAsTab); }},
        {kSettingVistaBanner, L"0", L"1", [&] { return flag(lmGetUseVistaBanner); }},
        {kSettingSuperUser, L"0", L"1", [&] { return flag(lmGetGlobalSuperUser); }},
        {kSettingHKLayerColor, L"1", L"5", [&] { return number(lmGetHKLayerColor); }},
    };
    for (const auto& preference : preferences) {
        EXPECT_EQ(preference.get(), preference.before) << preference.key;
        ASSERT_TRUE(StoreHostSetting(preference.key, preference.stored));
        EXPECT_EQ(preference.get(), preference.stored) << preference.key;
    }

    for (const bool stored : {false, true}) {
        CString file;
        CString layer;
        bool automatisch = !stored;
        EXPECT_TRUE(lmGetCurrentWinposFile(file));
        lmGetHKLayer(layer);
        lmGetAutoLayerManagement(automatisch, !stored);
        EXPECT_EQ(file, stored ? L"finestre.txt" : L"winpos.txt");
        EXPECT_EQ(layer, stored ? L"Radiatori" : L"HEIZ_HK_$d");
        EXPECT_TRUE(automatisch) << "as the caller proposes, until it is stored";
        ASSERT_TRUE(StoreHostSetting(kSettingWinposFile, L"finestre.txt"));
        ASSERT_TRUE(StoreHostSetting(kSettingHKLayer, L"Radiatori"));
        ASSERT_TRUE(StoreHostSetting(kSettingAutoLayer, L"1"));
    }
}

TEST_F(HostSettings, ASkinColorIsDeliveredOnlyWhereOneIsSet)
{
    const std::pair<LumoSkinType, const wchar_t*> keys[] = {
        {skinHintergrund, kSettingSkinHintergrund},
        {skinSchaltflaeche, kSettingSkinSchaltflaeche},
        {skinRahmen, kSettingSkinRahmen},
        {skinListe, kSettingSkinListe},
        {skinEingabe, kSettingSkinEingabe}};
    for (const auto& [type, key] : keys) {
        unsigned long color = 77;
        EXPECT_FALSE(lmGetLumoSkinColor(type, color));
        for (const wchar_t* const bad : {L"", L"#D6E4F", L"#D6E4F5F", L"D6E4F5", L"#D6E4G5"}) {
            const CSettingOverride setting(key, bad);
            EXPECT_FALSE(lmGetLumoSkinColor(type, color)) << bad;
        }
        EXPECT_EQ(color, 77U);
        ASSERT_TRUE(StoreHostSetting(key, L"#D6e4F5"));
        EXPECT_TRUE(lmGetLumoSkinColor(type, color));
        EXPECT_EQ(color, 0xF5E4D6U) << "red lies in the lowest byte";
    }
}

TEST_F(HostSettings, AWorkPathLeavesTheTargetAloneUntilItIsSet)
{
    using GetPath = bool (*)(CString&);
    const std::pair<GetPath, const wchar_t*> paths[] = {
        {configGetWorkPathLocal, kSettingLocalPath}, {configGetWorkPathServer, kSettingServerPath}};
    for (const auto& [get, key] : paths) {
        CString path = L"before";
        ASSERT_TRUE(StoreHostSetting(key, L""));
        EXPECT_FALSE(get(path));
        EXPECT_EQ(path, L"before");
        ASSERT_TRUE(StoreHostSetting(key, L"\\\\server\\dati"));
        EXPECT_TRUE(get(path));
        EXPECT_EQ(path, L"\\\\server\\dati");
    }
}

TEST_F(HostSettings, BlocksThatNobodySetLeaveTheTargetsAlone)
{
    const CEnvironmentVariable folder("RADSEL_HKBLOCKDIR", nullptr);
    const CEnvironmentVariable valves("RADSEL_VEBLOCKDIR", "/valves");
    CString text = L"before";
    EXPECT_FALSE(lmGetHKBlock(text));
    EXPECT_FALSE(lmGetDWGDefPath(LumoDWGDefsNames::heizkoerper, text));
    EXPECT_EQ(text, L"before");
    EXPECT_TRUE(lmGetDWGDefPath(static_cast<LumoDWGDefsNames>(8), text));
    EXPECT_EQ(text, L"/valves");
    EXPECT_FALSE(lmGetDWGDefPath(static_cast<LumoDWGDefsNames>(3), text));

    lmSetHKBlock(L"HK_600");
    EXPECT_TRUE(lmGetHKBlock(text));
    EXPECT_EQ(text, L"HK_600");
    ASSERT_TRUE(StoreHostSetting(kSettingHKBlockFolder, L"D:\\blocchi"));
    EXPECT_TRUE(lmGetDWGDefPath(static_cast<LumoDWGDefsNames>(2), text));
    EXPECT_EQ(text, L"D:\\blocchi");
}

TEST_F(HostSettings, RecordsLieBesideTheSettings)
{
    HKAUSWAHL_UEBERGABE record;
    EXPECT_TRUE(WriteDefFile(&record, &HKAUSWAHL_UEBERGABE::GetThisClass(), L"HkAuswahl.def"));
    EXPECT_TRUE(m_folder.Exists("radsel/HkAuswahl.def"));

    const CEnvironmentVariable noConfig(kSettingsVariable, nullptr);
    const CEnvironmentVariable noHome("HOME", nullptr);
    EXPECT_FALSE(WriteDefFile(&record, &HKAUSWAHL_UEBERGABE::GetThisClass(), L"HkAuswahl.def"));
}

} // namespace
