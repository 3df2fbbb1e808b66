#pragma once

#include "platform/export.h"

namespace host_defaults {

/// Makes the toolkit's application object if the program has none; it then lives as long as the
/// process. False if the program has one that cannot show windows: dialogs then count as
/// cancelled.
HOST_API bool EnsureWindows();

} // namespace host_defaults
