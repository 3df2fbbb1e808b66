#include "platform/file_replacement.h"

#include "platform/descriptor.h"
#include "platform/file_bytes.h"
#include "platform/replacement_steps.h"
#include "platform/temporary_file.h"

#include <cerrno>
#include <string>

namespace fs = std::filesystem;

namespace {

/// Fills a created file with what its target holds; false with errno set if that fails.
bool CopyContents(const fs::path& from, int to)
{
    const int source = OpenDescriptor(from, FileAccess::read);
    if (source < 0) {
        return errno == ENOENT;
    }
    std::string bytes;
    const bool ok = ReadAll(source, bytes) && WriteAll(to, bytes.data(), bytes.size());
    const int error = errno;
    CloseDescriptor(source);
    errno = error;
    return ok && SeekDescriptor(to, 0) == 0;
}

bool Overwrite(int descriptor, const std::string& bytes)
{
    return SeekDescriptor(descriptor, 0) == 0 && WriteAll(descriptor, bytes.data(), bytes.size()) &&
           SetLengthOfDescriptor(descriptor, static_cast<std::int64_t>(bytes.size())) &&
           SyncDescriptor(descriptor);
}

/// Writes what was held back into the target, or leaves it as it was.
bool WriteInto(const fs::path& target, int held)
{
    const int descriptor = OpenDescriptor(target, FileAccess::readWrite);
    std::string next;
    std::string before;
    if (descriptor < 0) {
        return false;
    }
    bool done = SeekDescriptor(held, 0) == 0 && ReadAll(held, next) && ReadAll(descriptor, before);
    if (done && !Overwrite(descriptor, next)) {
        const int error = errno;
        Overwrite(descriptor, before);
        errno = error;
        done = false;
    }
    const int error = errno;
    CloseDescriptor(descriptor);
    errno = error;
    return done;
}

} // namespace

int CFileReplacement::OpenBeside()
{
    const int descriptor = OpenTemporary(m_target, m_temporary);
    const bool isOurs = descriptor >= 0 && TakeAfter(descriptor, m_temporary, m_target);
    return descriptor < 0 || isOurs ? descriptor : Fail(descriptor);
}

int CFileReplacement::Fail(int descriptor)
{
    const int error = errno;
    Drop();
    CloseDescriptor(descriptor);
    errno = error;
    return -1;
}

int CFileReplacement::Begin(const fs::path& target, bool keep)
{
    m_target = target;
    const int error = CheckTarget(target);
    const bool exists = error == 0;
    if (!exists && error != ENOENT) {
        errno = error;
        return -1;
    }
    int descriptor = OpenBeside();
    const bool refused = errno == EACCES || errno == EPERM || errno == EROFS;
    if (descriptor < 0 && exists && refused) {
        m_temporary.clear();
        descriptor = OpenNameless();
    }
    if (descriptor < 0) {
        return -1;
    }
    if (keep && !CopyContents(target, descriptor)) {
        return Fail(descriptor);
    }
    m_bOpen = true;
    return descriptor;
}

bool CFileReplacement::Commit(int descriptor)
{
    // Renamed while its lock is held, lest another writer take it for a leftover.
    const bool done = m_temporary.empty() ? WriteInto(m_target, descriptor)
                                          : PutInPlace(descriptor, m_temporary, m_target);
    if (!done) {
        return false;
    }
    m_temporary.clear();
    m_bOpen = false;
    return true;
}

void CFileReplacement::Drop() noexcept
{
    if (!m_temporary.empty()) {
        RemoveFile(m_temporary);
        m_temporary.clear();
    }
    m_bOpen = false;
}
