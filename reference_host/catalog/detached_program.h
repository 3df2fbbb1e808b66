#pragma once

#include <string>

namespace reference_host {

/// Starts a program, found along PATH, with one argument. The program outlives this process and
/// leaves nothing behind in it when it ends. False if it cannot be started, or ends at once with an
/// exit code other than 0; as long as it runs on, that is waited for during a second.
bool StartDetached(const std::string& program, const std::string& argument);

} // namespace reference_host
