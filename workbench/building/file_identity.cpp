#include "workbench/building/file_identity.h"

#include "platform/path.h"

#include <system_error>

namespace workbench {

namespace fs = std::filesystem;

fs::path CanonicalPath(const CString& path)
{
    const fs::path resolved = ResolvePath(path);
    std::error_code error;
    fs::path canonical = fs::weakly_canonical(fs::absolute(resolved, error), error);
    return canonical.empty() ? resolved : canonical;
}

bool IsSameFile(const CString& a, const CString& b)
{
    if (a.empty() || b.empty()) {
        return false;
    }
    std::error_code error;
    return CanonicalPath(a) == CanonicalPath(b) ||
           fs::equivalent(ResolvePath(a), ResolvePath(b), error);
}

} // namespace workbench
