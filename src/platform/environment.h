#pragma once

#include "platform/text.h"

#include <functional>
#include <optional>

using EnvironmentReader = std::function<std::optional<CString>(const CString& name)>;

/// Value of an environment variable; nothing if it does not exist or is empty, which is how users
/// of some shells unset one.
std::optional<CString> GetEnvironment(const CString& name);

/// Makes `reader` answer GetEnvironment(); an empty one stands for the system's environment.
/// Returns the reader that was in force.
EnvironmentReader SetEnvironmentReader(EnvironmentReader reader);

/// What the system's environment itself has for a name, empty or not.
std::optional<CString> ReadSystemEnvironment(const CString& name);

/// Sets a variable of the system's environment, for this process and those that it starts, or
/// removes it.
void SetSystemEnvironment(const CString& name, const std::optional<CString>& value);
