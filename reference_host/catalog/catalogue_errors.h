#pragma once

#include "platform/export.h"
#include "platform/file_fault.h"
#include "platform/text.h"

#include <optional>

namespace reference_host {

/// The error of the last reading of this manufacturer's file; nothing if that went well or if the
/// file has not been read yet.
HOST_API std::optional<CFileFault> GetCatalogueError(const CString& hersteller);

} // namespace reference_host
