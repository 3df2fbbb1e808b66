#include "host/host_prefs.h"
#include "reference_host/prefs/host_settings.h"
#include "tests/fuzz/entries.h"
#include "tests/support/environment_variable.h"
#include "tests/support/temp_folder.h"

#include <map>
#include <string>

using namespace reference_host;

namespace {

constexpr const wchar_t* kKeys[] = {kSettingHKDir,        kSettingVEDir,      kSettingDrawingUnit,
                                    kSettingUserUnit,     kSettingWinposFile, kSettingHKLayer,
                                    kSettingHKLayerColor, kSettingAutoLayer,  kSettingHKBlock,
                                    kSettingSuperUser,    kSettingProductName};

/// What stands for a setting that the file does not have; no line of a file can be this.
constexpr wchar_t kNone[] = L"\n";

std::map<CString, CString> AllSettings()
{
    std::map<CString, CString> all;
    for (const wchar_t* const key : kKeys) {
        all[key] = GetHostSetting(key, kNone);
    }
    return all;
}

/// Values are taken as they stand; these getters make numbers and flags of them.
void AskHost()
{
    int number = 0;
    bool flag = false;
    lmGetDimension2(number);
    lmGetDimensionUsr();
    lmGetHKLayerColor(number);
    lmGetAutoLayerManagement(flag, true);
    lmGetGlobalSuperUser(flag);
}

} // namespace

void RunSettings(std::span<const std::uint8_t> bytes)
{
    static const CTempFolder folder;
    const CEnvironmentVariable config(kSettingsVariable, folder.Root().string().c_str());
    const std::string before(bytes.begin(), bytes.end());
    folder.WriteBytes("radsel/settings.txt", before);
    std::map<CString, CString> settings = AllSettings();
    AskHost();

    const CString value = L"Città = 1";
    if (!StoreHostSetting(kSettingHKLayer, value)) {
        Require(folder.ReadBytes("radsel/settings.txt") == before, "what is refused stays");
        return;
    }
    settings[kSettingHKLayer] = value;
    Require(AllSettings() == settings, "a setting comes back and the others stay");
    if (!before.starts_with("radsel-settings ")) {
        Require(folder.ReadBytes("radsel/settings.txt.damaged") == before, "damage is put aside");
    }
}
