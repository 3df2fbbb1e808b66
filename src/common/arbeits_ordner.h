#pragma once

#include "platform/text.h"

#include <functional>

/// Path of a file in the folder that this working place keeps its own files in: the host's local
/// work path, else the environment variable "TGA_DATA_SINGLE". If there is neither, a message says
/// so once per process and the path is the bare file name.
CString ArbeitsPfad(const CString& dateiName);

/// Does a piece of work on such a file. What these files hold is a convenience, so that one that
/// fails on the way is passed over without a word.
void MitArbeitsDatei(const std::function<void()>& arbeit);
