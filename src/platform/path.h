#pragma once

#include "platform/text.h"

#include <filesystem>
#include <system_error>

/// The system's form of a path as records and texts hold it: "\" separates folders. Where the exact
/// name does not exist, a name that differs only in case stands in (the first in alphabetical order
/// if there are several); what exists in no case form stays as written.
std::filesystem::path ResolvePath(const CString& path);

/// The file that a path leads to, as ResolvePath() finds it and with links followed, so that
/// replacing it leaves a link in place; a link to nothing is the file itself. `error` tells of a
/// passing failure on the way, behind which the file may stand after all; a folder that may be
/// entered but not listed holds what is asked for by its exact name.
std::filesystem::path FindFile(const CString& path, std::error_code& error);

/// The same for a path in the system's own form, every name of which counts as it stands.
std::filesystem::path FollowLinks(const std::filesystem::path& file, std::error_code& error);

/// The text of a system path, with "/" as the separator.
CString TextFromPath(const std::filesystem::path& path);

/// `folder` and `name` with a "\" between them, unless the folder already ends in one.
CString JoinPath(const CString& folder, const CString& name);
