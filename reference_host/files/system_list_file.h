#pragma once

#include "platform/text.h"

#include <vector>

namespace reference_host {

/// A heating system that the user of the selection dialog has stored.
struct CStoredSystem
{
    CString strName;
    /// In degrees Celsius; 0.0 where the entry has no such number.
    double vorlauf = 0.0;
    double ruecklauf = 0.0;
};

/// The heating systems in "CmbData.txt" of the data root, in their order. None if there is no data
/// root or no list, or it cannot be read.
std::vector<CStoredSystem> ReadStoredSystems();

} // namespace reference_host
