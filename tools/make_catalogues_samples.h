#pragma once

#include "platform/text.h"

#include <string>
#include <vector>

/// A catalogue of an invented manufacturer.
struct CSampleCatalogue
{
    /// Name of the manufacturer and of his folder.
    CString strHersteller;
    /// The whole file "hk.tga".
    std::string strBytes;
};

/// The sample catalogues, the same bytes at every call. Outputs, exponents and water contents are
/// those that tests at 75/65/20 °C give for radiators of such build.
std::vector<CSampleCatalogue> MakeSampleCatalogues();
