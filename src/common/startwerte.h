#pragma once

#include "frame/vdi6030_start.h"

/// What the next radiator starts with, as the host keeps it; a new record where it keeps none.
VDI6030START LeseStartwerte();
