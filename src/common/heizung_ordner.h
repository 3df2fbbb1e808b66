#pragma once

#include "platform/text.h"

/// Path of a file in the heating folder of the data root. The root is the host's work path on the
/// server, else the environment variable "TGA_DATA_SINGLE_S", else "TGA_DATA_SINGLE", whichever
/// exists first. If none does, a message says so once per process and the path starts with the
/// heating folder.
CString HeizungPfad(const CString& dateiName);
