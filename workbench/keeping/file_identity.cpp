#include "workbench/keeping/file_identity.h"

#include "platform/path.h"
#include "platform/write_protection.h"
#include "workbench/building/json_fields.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <cerrno>
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

CString AbsolutePath(const CString& path)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(ResolvePath(path), error);
    return error ? path : TextFromPath(absolute);
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

CString FingerprintOf(std::string_view bytes)
{
    const QByteArray data = QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size()));
    const QByteArray digest = QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex();
    return {digest.begin(), digest.end()};
}

bool HoldsOther(const CString& path, const CString& fingerprint)
{
    try {
        return FingerprintOf(ReadJsonBytes(path)) != fingerprint;
    } catch (const CFileException& error) {
        return error.GetOsError() != ENOENT;
    } catch (const CContentException&) {
        return true;
    }
}

bool IsWriteProtected(const CString& path)
{
    return ::IsWriteProtected(ResolvePath(path));
}

} // namespace workbench
