#pragma once

#include "platform/text.h"

/// The name by which the system knows the user of this process; empty if it does not tell.
CString UserName();
