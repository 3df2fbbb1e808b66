#pragma once

#include "platform/text.h"

#include <optional>

/// The data root: the host's work path on the server, else the environment variable
/// "TGA_DATA_SINGLE_S", else "TGA_DATA_SINGLE", whichever exists first.
std::optional<CString> FindeDatenWurzel();

/// Path of a file in the heating folder of the data root. If there is no root, a message says so
/// once per process and the path starts with the heating folder.
CString HeizungPfad(const CString& dateiName);
