#include "platform/environment.h"

#include "platform/encoding.h"

#include <cstdlib>

std::optional<CString> ReadSystemEnvironment(const CString& name)
{
    const char* const value = std::getenv(Utf8FromWide(name).c_str());
    return value != nullptr ? std::optional<CString>(WideFromUtf8(value)) : std::nullopt;
}

void SetSystemEnvironment(const CString& name, const std::optional<CString>& value)
{
    if (value) {
        setenv(Utf8FromWide(name).c_str(), Utf8FromWide(*value).c_str(), 1);
    } else {
        unsetenv(Utf8FromWide(name).c_str());
    }
}
