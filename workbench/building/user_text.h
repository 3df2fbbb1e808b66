#pragma once

#include "workbench/building/building.h"

namespace workbench {

/// Texts for people, on screen and on paper alike. Numbers have a comma and a true minus sign; what
/// programs read has other forms (platform/format.h).

/// A number with so many decimals.
CString FormatDecimals(double value, int decimals);

/// A number with the decimals that it has.
CString FormatNumber(double value);

/// Whole watts: "−120 W".
CString FormatWatts(double watts);

/// A share in per cent, with one decimal: "35,0 %".
CString FormatPercent(double percent);

/// Supply and return: "52,5/45".
CString FormatSystem(const CHeatingSystem& system);

/// Both texts with the separator between them, or the one that is not empty.
CString Joined(const CString& a, const CString& b, const CString& separator = L"; ");

} // namespace workbench
