#pragma once

#include "platform/text.h"

#include <vector>

namespace workbench {

/// The buildings that the user worked on last, kept in the host's settings, the latest first.
std::vector<CString> ReadRecentFiles();

/// Puts a building's file, by its absolute path, at their head. An empty path, and one that cannot
/// be kept, is passed over.
void KeepRecentFile(const CString& path);

/// Forgets a file, as one that is there no more.
void ForgetRecentFile(const CString& path);

} // namespace workbench
