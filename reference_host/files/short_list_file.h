#pragma once

#include "platform/array.h"
#include "platform/file_fault.h"
#include "platform/text.h"

#include <optional>

namespace reference_host {

/// A short list of connection types as it stands in its file.
struct CShortListFile
{
    /// The file, as a system path.
    CString strFile;
    /// Its lines, cut and counted as the module cuts them.
    CStringArray lines;
    /// What stands behind the last line end, which the module does not read.
    CString strLost;
    /// Why it is not read although it can be: it is larger than a list may be. Then it has no
    /// lines.
    std::optional<CFileFault> fault;
};

/// Reads the short list in a file; an empty path stands for the list of the data root, the one that
/// the connection dialog offers. Raises CFileException if the file cannot be read.
CShortListFile ReadShortList(const CString& path);

} // namespace reference_host
