#pragma once

#include "platform/export.h"

#include <filesystem>
#include <optional>

namespace reference_host {

/// The file with the help page of a dialog: "<dialogId>.pdf", else "<dialogId>.html", in the help
/// folder. That is the one of the settings, else "help" beside the folder of this library, as a
/// build has it, else "share/radsel/help" beside that folder or one above it, as an installation
/// has it. Nothing if there is no such file.
HOST_API std::optional<std::filesystem::path> FindHelpPage(unsigned dialogId);

} // namespace reference_host
