#include "host/host_prefs.h"

#include "platform/environment.h"
#include "platform/numbers.h"
#include "workbench/host_prefs/host_settings.h"

namespace {

constexpr wchar_t kMeter[] = L"1";

/// A folder from the settings, else from an environment variable, else an empty text.
CString GetFolder(const wchar_t* setting, const wchar_t* variable)
{
    return GetHostSetting(setting, GetEnvironment(variable).value_or(CString()));
}

} // namespace

CString GetHKDir()
{
    return GetFolder(kSettingHKDir, L"RADSEL_HKDIR");
}

CString GetVEDir(bool /*projectCopy*/)
{
    return GetFolder(kSettingVEDir, L"RADSEL_VEDIR");
}

void lmGetDimension2(int& code)
{
    code = _wtoi(GetHostSetting(kSettingDrawingUnit, kMeter));
}

int lmGetDimensionUsr()
{
    return _wtoi(GetHostSetting(kSettingUserUnit, kMeter));
}
