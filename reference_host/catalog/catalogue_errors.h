#pragma once

#include "platform/export.h"
#include "platform/text.h"

#include <optional>

namespace reference_host {

/// Why a manufacturer's catalogue could not be read.
struct CCatalogueError
{
    /// The file, as a system path.
    CString strFile;
    /// Line number from 1; 0 if the file as a whole is at fault.
    int nLine = 0;
    /// What is wrong, in a sentence for the user.
    CString strMessage;
};

/// The error of the last reading of this manufacturer's file; nothing if that went well or if the
/// file has not been read yet.
HOST_API std::optional<CCatalogueError> GetCatalogueError(const CString& hersteller);

} // namespace reference_host
