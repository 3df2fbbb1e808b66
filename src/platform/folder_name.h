#pragma once

#include "platform/text.h"

/// Whether a text can be the name of one folder below another: not empty, no way up, no separator.
/// Names that come out of files and records are asked before a path is made of them, lest a path
/// lead out of the folder that it belongs to.
bool IsFolderName(const CString& name);
