#pragma once

#include "platform/text.h"
#include "reference_host/check/check_report.h"

namespace reference_host {

/// Looks through a file, or through all files below a folder: "hk.tga" (a maker's radiators),
/// "ha.tga" (a maker's valves) and "Vent.txt" (a short list of connection types), case left aside.
/// False if the path is a file of another name.
bool CheckPath(const CString& path, CCheckReport& report);

} // namespace reference_host
