#include "platform/environment.h"

#include <utility>

namespace {

EnvironmentReader& CurrentReader()
{
    static EnvironmentReader reader;
    return reader;
}

std::optional<CString> Read(const CString& name)
{
    if (const EnvironmentReader reader = CurrentReader()) {
        return reader(name);
    }
    return ReadSystemEnvironment(name);
}

} // namespace

std::optional<CString> GetEnvironment(const CString& name)
{
    std::optional<CString> value = Read(name);
    return value && value->empty() ? std::nullopt : value;
}

EnvironmentReader SetEnvironmentReader(EnvironmentReader reader)
{
    return std::exchange(CurrentReader(), std::move(reader));
}
