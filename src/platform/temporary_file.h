#pragma once

#include <filesystem>

/// Opens an empty file beside `target` for its next content, to be renamed or removed by the
/// caller, and sets its name. Returns its descriptor, which the caller closes after that, or below
/// 0 with errno set.
///
/// A target has a few such names, and a file of one of them is somebody's as long as its lock is
/// held: what killed processes have left is used up or removed by the next one that writes to the
/// target. Where the file system has no locks nobody can tell what is left over; there each file
/// has a name of its own.
int OpenTemporary(const std::filesystem::path& target, std::filesystem::path& temporary);
