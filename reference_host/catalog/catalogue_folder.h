#pragma once

#include "platform/text.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace reference_host {

/// The folder of the radiator catalogues: one sub-folder a manufacturer, named like him, with his
/// file "hk.tga" in it.

/// Names of the manufacturers below `folder` in alphabetical order, case left aside. Empty if the
/// folder does not exist or cannot be read.
std::vector<CString> ListManufacturers(const CString& folder);

/// Where the manufacturer's catalogue file is or would be. Nothing if the folder's text is empty or
/// the name cannot be that of a sub-folder.
std::optional<std::filesystem::path> FindCatalogueFile(const CString& folder,
                                                       const CString& hersteller);

} // namespace reference_host
