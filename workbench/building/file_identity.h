#pragma once

#include "platform/text.h"

#include <filesystem>

namespace workbench {

/// The one path of a file that is told in several ways: absolute, without links, as far as it
/// exists.
std::filesystem::path CanonicalPath(const CString& path);

/// Whether both paths lead to one file, which need not exist. An empty path leads nowhere.
bool IsSameFile(const CString& a, const CString& b);

} // namespace workbench
