#pragma once

#include "platform/text.h"

/// Text of the valve side by its number in the module's string table, 103 to 115 and 119 to 120;
/// empty for any other number.
CString VentilString(int nummer);

/// Text of a valve kind code, 1 to 11; empty for any other.
CString VentilArtText(int ventilArt);
