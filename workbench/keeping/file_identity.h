#pragma once

#include "platform/text.h"

#include <filesystem>
#include <string_view>

namespace workbench {

/// The one path of a file that is told in several ways: absolute, without links, as far as it
/// exists.
std::filesystem::path CanonicalPath(const CString& path);

/// The path as it also holds in another folder.
CString AbsolutePath(const CString& path);

/// Whether both paths lead to one file, which need not exist. An empty path leads nowhere.
bool IsSameFile(const CString& a, const CString& b);

/// Tells contents of files apart.
CString FingerprintOf(std::string_view bytes);

/// Whether writing to the file would take something away: there is one, with other bytes than those
/// of the fingerprint. A file that cannot be read counts as such.
bool HoldsOther(const CString& path, const CString& fingerprint);

/// Whether there is such a file and this user may not write to it, or nobody may.
bool IsWriteProtected(const CString& path);

} // namespace workbench
