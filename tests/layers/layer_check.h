#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Holds the includes of a source tree against the table of its rooms, as the build writes it. A
/// line of the table is the folder of a room, how it stands to the toolkit, and the rooms it uses:
///
///     src/dialogs toolkit=none src/uikit src/common
///
/// A room may include itself, what it uses, and all that those may include. A file belongs to the
/// room of the nearest folder above it. Returns the faults, each with file and line and the rule
/// that is broken; none for a tree that keeps to its table.
std::vector<std::string> FindLayerFaults(const std::filesystem::path& root,
                                         const std::string& table);
