#include "host/host_prefs.h"

#include "host_defaults/answers.h"
#include "platform/environment.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "reference_host/prefs/host_settings.h"

using namespace reference_host;

namespace {

/// A choice of yes or no, kept as 1 or 0.
bool GetFlag(const wchar_t* setting, bool fallback)
{
    return _wtoi(GetHostSetting(setting, fallback ? L"1" : L"0")) != 0;
}

int GetNumber(const wchar_t* setting, int fallback)
{
    return _wtoi(GetHostSetting(setting, FormatInt(fallback)));
}

bool TakeUnlessEmpty(const CString& text, CString& target)
{
    if (text.empty()) {
        return false;
    }
    target = text;
    return true;
}

/// A folder from the settings, else from an environment variable, else an empty text.
CString GetFolder(const wchar_t* setting, const wchar_t* variable)
{
    return GetHostSetting(setting, GetEnvironment(variable).value_or(CString()));
}

} // namespace

CString GetHKDir(bool /*projectCopy*/)
{
    return GetFolder(kSettingHKDir, L"RADSEL_HKDIR");
}

CString GetVEDir(bool /*projectCopy*/)
{
    return GetFolder(kSettingVEDir, L"RADSEL_VEDIR");
}

void lmGetDimension2(int& code)
{
    host_defaults::lmGetDimension2(code);
    code = GetNumber(kSettingDrawingUnit, code);
}

int lmGetDimensionUsr()
{
    return GetNumber(kSettingUserUnit, host_defaults::lmGetDimensionUsr());
}

void lmGetHKLayer(CString& layer)
{
    host_defaults::lmGetHKLayer(layer);
    layer = GetHostSetting(kSettingHKLayer, layer);
}

void lmGetHKLayerColor(int& farbe)
{
    host_defaults::lmGetHKLayerColor(farbe);
    farbe = GetNumber(kSettingHKLayerColor, farbe);
}

void lmGetAutoLayerManagement(bool& automatisch, bool vorgabe)
{
    automatisch = GetFlag(kSettingAutoLayer, vorgabe);
}

bool lmGetDWGDefPath(const LumoDWGDefsNames& name, CString& path)
{
    CString folder;
    switch (name) {
    case LumoDWGDefsNames::heizkoerper:
        folder = GetFolder(kSettingHKBlockFolder, L"RADSEL_HKBLOCKDIR");
        break;
    case LumoDWGDefsNames::ventile:
        folder = GetFolder(kSettingValveBlockFolder, L"RADSEL_VEBLOCKDIR");
        break;
    }
    return TakeUnlessEmpty(folder, path);
}

bool lmGetHKBlock(CString& block)
{
    return TakeUnlessEmpty(GetHostSetting(kSettingHKBlock, {}), block);
}

void lmSetHKBlock(const CString& block)
{
    StoreHostSetting(kSettingHKBlock, block);
    // What is set counts from now on, also where something else was lent for a while.
    ClearHostSettingOverride(kSettingHKBlock);
}

bool lmGetGlobalSuperUser(bool& superUser)
{
    superUser = GetFlag(kSettingSuperUser, false);
    return true;
}
