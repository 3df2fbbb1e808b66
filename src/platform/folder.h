#pragma once

#include "platform/text.h"

#include <vector>

/// Names of the folders in a folder, hidden ones included. They come in the order of the alphabet
/// without regard to case, which is the order that the directory search of the catalogues' home
/// system gives. Empty if the folder cannot be read. `path` is a text in the sense of path.h.
std::vector<CString> ListFolders(const CString& path);

/// The name without its extension: what stands before its last point, if it has one that is not
/// its first character.
CString FileTitle(const CString& name);
