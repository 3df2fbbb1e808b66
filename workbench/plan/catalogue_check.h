#pragma once

#include "reference_host/catalog/catalogue_errors.h"

#include <vector>

namespace workbench {

/// Reads the radiator catalogues of all makers and tells those that cannot be read.
std::vector<CFileFault> CheckCatalogues();

} // namespace workbench
