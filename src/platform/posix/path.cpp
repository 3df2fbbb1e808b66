#include "platform/path.h"

#include "platform/encoding.h"

#include <system_error>

namespace fs = std::filesystem;

namespace {

/// The entry of `folder` whose name differs from `name` in case only; `name` itself if there is
/// none. `failure` is set if that cannot be told for now.
fs::path FindIgnoringCase(const fs::path& folder, const fs::path& name, std::error_code& failure)
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
    const bool lasting = error == std::errc::no_such_file_or_directory ||
                         error == std::errc::not_a_directory ||
                         error == std::errc::permission_denied;
    if (error && !lasting) {
        failure = error;
    }
    return found.empty() ? name : found;
}

/// True unless there is no entry of exactly this name. `failure` is set if that cannot be told for
/// now.
bool Stands(const fs::path& path, std::error_code& failure)
{
    std::error_code error;
    const fs::file_type type = fs::symlink_status(path, error).type();
    if (type == fs::file_type::none && error != std::errc::permission_denied) {
        failure = error;
    }
    return type != fs::file_type::not_found;
}

fs::path Resolve(const CString& path, std::error_code& failure)
{
    CString slashed = path;
    ReplaceAll(slashed, L'\\', L'/');
    fs::path exact = Utf8FromWide(slashed);
    if (Stands(exact, failure)) {
        return exact;
    }
    fs::path resolved;
    for (const fs::path& part : exact) {
        const fs::path next = resolved / part;
        resolved =
            Stands(next, failure) ? next : resolved / FindIgnoringCase(resolved, part, failure);
    }
    return resolved;
}

} // namespace

fs::path ResolvePath(const CString& path)
{
    std::error_code failure;
    return Resolve(path, failure);
}

fs::path FindFile(const CString& path, std::error_code& error)
{
    error.clear();
    fs::path resolved = Resolve(path, error);
    return error ? resolved : FollowLinks(resolved, error);
}

fs::path FollowLinks(const fs::path& file, std::error_code& error)
{
    error.clear();
    // An empty path names no file; libraries differ in whether its canonical form is the current
    // folder.
    if (file.empty()) {
        return file;
    }
    fs::path real = fs::weakly_canonical(file, error);
    return error ? file : real;
}

CString TextFromPath(const fs::path& path)
{
    return WideFromUtf8(path.native());
}
