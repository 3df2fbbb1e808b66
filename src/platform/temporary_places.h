#pragma once

#include <filesystem>

/// Names beside a file at which its next content may be written. A place is somebody's as long as
/// he holds the lock of the file that stands there, which ends with his process.

/// Makes an empty file at the place and holds its lock; uses up what a killed process has left
/// there. Returns its descriptor, which the caller closes, or below 0 where the place is somebody
/// else's, or no file can be made or locked.
int TakePlace(const std::filesystem::path& place);

/// Removes what a killed process has left at the place.
void RemoveLeftover(const std::filesystem::path& place);

/// Makes an empty file of a name that nobody has used yet, for file systems without locks. Below 0
/// with errno set if that fails.
int MakeUnusedPlace(const std::filesystem::path& folder, std::filesystem::path& place);
