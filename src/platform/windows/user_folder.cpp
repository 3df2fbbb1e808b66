#include "platform/user_folder.h"

#include "platform/environment.h"

#include <filesystem>

std::optional<CString> UserSettingsFolder()
{
    const std::optional<CString> folder = GetEnvironment(L"APPDATA");
    return folder && std::filesystem::path(*folder).is_absolute() ? folder : std::nullopt;
}
