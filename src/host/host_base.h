#pragma once

#include "host/api.h"
#include "platform/text.h"

/// HostBase: what the host offers to all its modules.

/// Delivers the root of the data that an office shares on its server. False, with `path` left
/// alone, if the office has none.
HOST_API bool configGetWorkPathServer(CString& path);
