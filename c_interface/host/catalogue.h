#pragma once

#include "platform/file_fault.h"
#include "platform/text.h"

#include <optional>

namespace c_interface {

/// What keeps the maker's catalogue from being read, as far as the last reading told; nothing where
/// the host hands its catalogues in.
std::optional<CFileFault> CatalogueError(const CString& maker);

/// What kept the last listing of makers from looking through the folder of catalogues; nothing
/// where no folder is set, or the host hands its catalogues in.
std::optional<CFileFault> CatalogueFolderError();

/// Gives up all that was read of catalogues. No call may be at work on them.
void ForgetCatalogues();

} // namespace c_interface
