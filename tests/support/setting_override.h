#pragma once

#include "reference_host/prefs/host_settings.h"

/// Overrides a setting of the host for the life of the object.
class CSettingOverride
{
public:
    CSettingOverride(const CString& key, const CString& value) : m_key(key)
    {
        reference_host::OverrideHostSetting(m_key, value);
    }

    ~CSettingOverride() { reference_host::ClearHostSettingOverride(m_key); }

    CSettingOverride(const CSettingOverride&) = delete;
    CSettingOverride& operator=(const CSettingOverride&) = delete;

private:
    CString m_key;
};
