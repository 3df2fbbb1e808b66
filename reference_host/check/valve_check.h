#pragma once

#include "platform/text.h"
#include "reference_host/check/check_report.h"

namespace reference_host {

/// Looks through a maker's valves ("ha.tga"): what stops the reading, and what the module reads
/// otherwise than it is written, or not at all.
void CheckValveFile(const CString& file, CCheckReport& report);

} // namespace reference_host
