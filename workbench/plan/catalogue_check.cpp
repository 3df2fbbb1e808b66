#include "workbench/plan/catalogue_check.h"

#include "host/host_catalog.h"

namespace workbench {

namespace {

/// Rows built to measure need an output; any will do to see whether a file can be read.
constexpr double kAnyOutput = 1000.0;

} // namespace

std::vector<CFileFault> CheckCatalogues()
{
    HK_VDI3805_HERSTELLER* const first = ReadHKDaten();
    std::vector<CFileFault> errors = reference_host::GetListingErrors();
    for (HK_VDI3805_HERSTELLER* maker = first; maker != nullptr; maker = maker->pNext) {
        ReadVdiFile(maker->Name, &maker->pArt, kAnyOutput);
        if (const auto error = reference_host::GetCatalogueError(maker->Name)) {
            errors.push_back(*error);
        }
    }
    return errors;
}

} // namespace workbench
