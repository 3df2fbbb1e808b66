#pragma once

#include "platform/text.h"

#include <string>
#include <vector>

/// A valve catalogue of an invented manufacturer.
struct CSampleValves
{
    /// Name of the manufacturer and of his folder.
    CString strHersteller;
    /// The whole file "ha.tga".
    std::string strBytes;
};

/// The sample valve catalogues, the same bytes at every call. Flow coefficients are those of
/// radiator valves of such sizes.
std::vector<CSampleValves> MakeSampleValves();
