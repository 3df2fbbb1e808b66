#pragma once

#include "reference_host/catalog/catalogue_errors.h"

#include <vector>

namespace workbench {

/// Reads the radiator catalogues of all makers and tells those that cannot be read.
std::vector<reference_host::CCatalogueError> CheckCatalogues();

/// File, line and reason in one line, as messages show it.
CString FormatCatalogueError(const reference_host::CCatalogueError& error);

} // namespace workbench
