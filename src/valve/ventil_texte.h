#pragma once

#include "platform/text.h"

/// Text of the valve side by its number in the module's string table, 103 to 120; empty for any
/// other number. The text of 116 holds a "%d" for the number of a valve.
CString VentilString(int nummer);

/// Text of a valve kind code, 1 to 11; empty for any other.
CString VentilArtText(int ventilArt);
