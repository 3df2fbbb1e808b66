#pragma once

#include <filesystem>
#include <optional>

namespace workbench {

struct CArguments;

/// Folders of the arguments become those of the process, in front of the user's settings; those
/// that the arguments leave out stay as they are. All raise CArgumentException for a folder that
/// does not exist.

void SetCatalogueFolder(const CArguments& arguments);

/// A folder that is missing matters only if valves are `needed`.
void SetValveFolder(const CArguments& arguments, bool needed);

void SetWorkplace(const CArguments& arguments);

/// The sample data that was installed beside the program; nothing where it runs from elsewhere.
std::optional<std::filesystem::path> InstalledDataFolder();

/// Where neither the user nor his environment says where catalogues, data root and blocks are,
/// those that were installed with the program count, if any were.
void UseInstalledData();

} // namespace workbench
