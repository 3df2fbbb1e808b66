#pragma once

/// HOST_API, with which one of the host's libraries marks what it offers.
#include "platform/export.h"
