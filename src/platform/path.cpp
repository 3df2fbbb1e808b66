#include "platform/path.h"

#include "platform/encoding.h"

#include <system_error>

namespace fs = std::filesystem;

namespace {

/// The entry of `folder` whose name differs from `name` in case only; `name` itself if there is
/// none.
fs::path FindIgnoringCase(const fs::path& folder, const fs::path& name)
{
    const CString wanted = WideFromUtf8(name.native());
    fs::path found;
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path candidate = entry->path().filename();
        if (EqualNoCase(WideFromUtf8(candidate.native()), wanted) &&
            (found.empty() || candidate < found)) {
            found = candidate;
        }
    }
    return found.empty() ? name : found;
}

} // namespace

fs::path ResolvePath(const CString& path)
{
    CString slashed = path;
    ReplaceAll(slashed, L'\\', L'/');
    fs::path exact = Utf8FromWide(slashed);
    std::error_code error;
    if (fs::symlink_status(exact, error).type() != fs::file_type::not_found) {
        return exact;
    }
    fs::path resolved;
    for (const fs::path& part : exact) {
        const fs::path next = resolved / part;
        const bool exists = fs::symlink_status(next, error).type() != fs::file_type::not_found;
        resolved = exists ? next : resolved / FindIgnoringCase(resolved, part);
    }
    return resolved;
}

CString TextFromPath(const fs::path& path)
{
    return WideFromUtf8(path.native());
}

CString JoinPath(const CString& folder, const CString& name)
{
    return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + name;
}
