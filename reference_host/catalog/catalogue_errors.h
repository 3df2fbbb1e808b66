#pragma once

#include "platform/export.h"
#include "platform/file_fault.h"
#include "platform/text.h"

#include <optional>
#include <vector>

namespace reference_host {

/// The error of the last reading of this manufacturer's file. Of a manufacturer whom the last
/// ReadHKDaten() did not find, what kept it from looking for him: his folder, or that of all
/// catalogues, which cannot be read. Nothing if all went well or nothing was read yet.
HOST_API std::optional<CFileFault> GetCatalogueError(const CString& hersteller);

/// The folders that the last ReadHKDaten() could not read.
HOST_API std::vector<CFileFault> GetListingErrors();

} // namespace reference_host
