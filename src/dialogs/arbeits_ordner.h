#pragma once

#include "platform/text.h"

/// Path of a file in the folder that this working place keeps its own files in: the host's local
/// work path, else the environment variable "TGA_DATA_SINGLE". If there is neither, a message says
/// so once per process and the path is the bare file name.
CString ArbeitsPfad(const CString& dateiName);
