#pragma once

#include "platform/text.h"

#include <filesystem>

/// The system's form of a path as records and texts hold it: "\" separates folders. Where the exact
/// name does not exist, a name that differs only in case stands in (the first in alphabetical order
/// if there are several); what exists in no case form stays as written.
std::filesystem::path ResolvePath(const CString& path);

/// The text of a system path, with "/" as the separator.
CString TextFromPath(const std::filesystem::path& path);

/// `folder` and `name` with a "\" between them, unless the folder already ends in one.
CString JoinPath(const CString& folder, const CString& name);
