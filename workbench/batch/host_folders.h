#pragma once

#include "platform/text.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace workbench {

struct CArguments;

/// Folders of the arguments become those of the process, in front of the user's settings; those
/// that the arguments leave out stay as they are.

void UseCatalogueFolder(const CArguments& arguments);

void UseValveFolder(const CArguments& arguments);

/// Raises CArgumentException for a folder that does not exist. The installed program's own working
/// place gets what it is to begin with, as far as it lacks it.
void UseWorkplace(const CArguments& arguments);

/// These raise CArgumentException if the folder that is in force does not exist.

void RequireCatalogueFolder();

void RequireValveFolder();

/// The sample data that was installed beside the program; nothing where it runs from elsewhere.
std::optional<std::filesystem::path> InstalledDataFolder();

/// Where neither the user nor his environment says where catalogues and blocks are, those that were
/// installed with the program count, if any were. Data root and working place are then a folder of
/// the user's own, since dialogs write to them.
void UseInstalledData();

/// Does so, and gives the arguments that stand in for what the user of an installed program leaves
/// out.
std::vector<CString> InstalledDefaults();

} // namespace workbench
