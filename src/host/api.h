#pragma once

/// HOST_API lies in platform/export.h.
#include "platform/export.h"
