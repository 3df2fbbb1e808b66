#include "reference_host/prefs/host_settings.h"

#include "platform/file_lock.h"
#include "platform/path.h"
#include "platform/user_folder.h"
#include "reference_host/prefs/settings_file.h"

#include <filesystem>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

namespace reference_host {

namespace {

std::map<CString, CString>& Overrides()
{
    static std::map<CString, CString> overrides;
    return overrides;
}

CString SettingsPath(const CString& folder)
{
    return JoinPath(folder, L"settings.txt");
}

/// The settings as this process has last read or stored them. While the file cannot be read they
/// count, lest a passing error send the files whose folders stand in it to other places.
CSettingsFile& LastSettings(const CString& path)
{
    static CSettingsFile last(path);
    return last;
}

/// Read afresh each time: the file is small, and another process may have stored something.
const CSettingsFile& StoredSettings(const CString& path)
{
    CSettingsFile& last = LastSettings(path);
    CSettingsFile now(path);
    if (now.IsReadable() || now.GetPath() != last.GetPath()) {
        last = std::move(now);
    }
    return last;
}

bool HoldsLineEnd(const CString& text)
{
    return text.find_first_of(L"\r\n") != CString::npos;
}

bool IsStorable(const CString& key, const CString& value)
{
    return !HoldsLineEnd(key) && !HoldsLineEnd(value) && key.find(L'=') == CString::npos;
}

} // namespace

std::optional<CString> ConfigurationFolder()
{
    const std::optional<CString> folder = UserSettingsFolder();
    return folder ? std::optional(JoinPath(*folder, L"radsel")) : std::nullopt;
}

CString GetHostSetting(const CString& key, const CString& fallback)
{
    const auto found = Overrides().find(key);
    if (found != Overrides().end()) {
        return found->second;
    }
    const std::optional<CString> folder = ConfigurationFolder();
    if (!folder) {
        return fallback;
    }
    return StoredSettings(SettingsPath(*folder)).Find(key).value_or(fallback);
}

bool AreHostSettingsKnown()
{
    const std::optional<CString> folder = ConfigurationFolder();
    return !folder || StoredSettings(SettingsPath(*folder)).IsReadable();
}

void OverrideHostSetting(const CString& key, const CString& value)
{
    Overrides()[key] = value;
}

void ClearHostSettingOverride(const CString& key)
{
    Overrides().erase(key);
}

bool StoreHostSetting(const CString& key, const CString& value)
{
    const std::optional<CString> folder = ConfigurationFolder();
    if (!folder || !IsStorable(key, value)) {
        return false;
    }
    std::error_code error;
    std::filesystem::create_directories(ResolvePath(*folder), error);
    const CString path = SettingsPath(*folder);
    const CFileLock lock(path);
    CSettingsFile settings(path);
    if (error || !settings.Store(key, value)) {
        return false;
    }
    LastSettings(path) = std::move(settings);
    return true;
}

} // namespace reference_host
