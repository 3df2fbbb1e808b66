#include "host/host_base.h"

#include "workbench/host_prefs/host_settings.h"

bool configGetWorkPathServer(CString& path)
{
    const CString stored = GetHostSetting(kSettingServerPath, CString());
    if (stored.empty()) {
        return false;
    }
    path = stored;
    return true;
}
