#pragma once

#include <string>

namespace reference_host {

/// Starts a program, found along PATH, with one argument, and returns at once. The program outlives
/// this process and leaves nothing behind in it when it ends. One that cannot be started is left
/// out without a word.
void StartDetached(const std::string& program, const std::string& argument);

} // namespace reference_host
