#pragma once

#include "platform/text.h"
#include "reference_host/check/check_report.h"

namespace reference_host {

/// Looks through a maker's radiators ("hk.tga"): what the reader of catalogues refuses, or else all
/// that the module stumbles over without a word in the rows that the reader makes of them.
void CheckRadiatorFile(const CString& file, CCheckReport& report);

} // namespace reference_host
