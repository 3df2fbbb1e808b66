#pragma once

#include "platform/text.h"

#include <optional>

/// The folder below which programs keep the settings of their user: $XDG_CONFIG_HOME or
/// ~/.config, on Windows %APPDATA%. Nothing for a user without one. Relative folders do not count:
/// settings would depend on where the program was started.
std::optional<CString> UserSettingsFolder();
