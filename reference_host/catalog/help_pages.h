#pragma once

#include "platform/export.h"
#include "platform/text.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace reference_host {

/// The file with the help page of a dialog: "<dialogId>.pdf", else "<dialogId>.html", in the help
/// folder. That is the one of the settings, else "help" beside the folder of this library, as a
/// build has it, else "share/radsel/help" beside that folder or one above it, as an installation
/// has it. Nothing if there is no such file.
HOST_API std::optional<std::filesystem::path> FindHelpPage(unsigned dialogId);

using HelpTeller = std::function<void(const CString& text)>;

/// Makes `teller` the one that tells the user that no program opens a help page, which this
/// library, free of windows, cannot do itself; an empty one stands for standard error. Returns the
/// teller that was in force.
HOST_API HelpTeller SetHelpTeller(HelpTeller teller);

} // namespace reference_host
