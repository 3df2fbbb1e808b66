#include "platform/user_folder.h"

#include "platform/environment.h"
#include "platform/path.h"

std::optional<CString> UserSettingsFolder()
{
    std::optional<CString> chosen = GetEnvironment(L"XDG_CONFIG_HOME");
    if (chosen && chosen->starts_with(L'/')) {
        return chosen;
    }
    const std::optional<CString> home = GetEnvironment(L"HOME");
    if (home && home->starts_with(L'/')) {
        return JoinPath(*home, L".config");
    }
    return std::nullopt;
}
