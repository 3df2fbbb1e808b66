#include "host/host_base.h"

#include "reference_host/prefs/host_settings.h"

using namespace reference_host;

namespace {

/// Delivers a folder from the settings; false if it is not set.
bool GetFolder(const wchar_t* setting, CString& path)
{
    const CString stored = GetHostSetting(setting, CString());
    if (stored.empty()) {
        return false;
    }
    path = stored;
    return true;
}

} // namespace

bool configGetWorkPathServer(CString& path)
{
    return GetFolder(kSettingServerPath, path);
}

bool configGetWorkPathLocal(CString& path)
{
    return GetFolder(kSettingLocalPath, path);
}
