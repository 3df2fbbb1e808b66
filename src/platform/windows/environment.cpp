#include "platform/environment.h"

#include "platform/windows/handle.h"

std::optional<CString> ReadSystemEnvironment(const CString& name)
{
    CString value(GetEnvironmentVariableW(name.c_str(), nullptr, 0), L'\0');
    if (value.empty()) {
        return std::nullopt;
    }
    value.resize(
        GetEnvironmentVariableW(name.c_str(), value.data(), static_cast<DWORD>(value.size())));
    return value;
}

void SetSystemEnvironment(const CString& name, const std::optional<CString>& value)
{
    SetEnvironmentVariableW(name.c_str(), value ? value->c_str() : nullptr);
}
