#pragma once

#include "platform/export.h"

#include <filesystem>
#include <optional>

namespace reference_host {

/// The file with the help page of a dialog: "<dialogId>.pdf", else "<dialogId>.html", in the help
/// folder. That is the one of the settings, else "share/radsel/help" or "help" beside the folder of
/// this library, as an installation or a build has it. Nothing if there is no such file.
HOST_API std::optional<std::filesystem::path> FindHelpPage(unsigned dialogId);

} // namespace reference_host
