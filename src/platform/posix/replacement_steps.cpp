#include "platform/replacement_steps.h"

#include "platform/posix/status.h"

#include <cerrno>
#include <cstdio>

#include <sys/mman.h>

namespace fs = std::filesystem;

namespace {

constexpr mode_t kPermissionBits = 07777;

/// Permission bits of a new file under the process's mask.
mode_t DefaultMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// Makes a finished rename last over a crash of the machine. Some file systems cannot do it for a
/// folder; the rename stands all the same.
void SyncFolderOf(const fs::path& file)
{
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

/// Gives a new file to whom the old one belongs; false if the process may not.
bool GiveTo(int descriptor, const struct stat& old)
{
    struct stat fresh = {};
    return fstat(descriptor, &fresh) == 0 &&
           ((fresh.st_uid == old.st_uid && fresh.st_gid == old.st_gid) ||
            fchown(descriptor, old.st_uid, old.st_gid) == 0) &&
           fchmod(descriptor, old.st_mode & kPermissionBits) == 0;
}

} // namespace

int CheckTarget(const fs::path& target)
{
    struct stat status = {};
    if (stat(target.c_str(), &status) != 0) {
        return errno;
    }
    if (!S_ISREG(status.st_mode)) {
        return S_ISDIR(status.st_mode) ? EISDIR : EACCES;
    }
    return MayWrite(target, status) ? 0 : EACCES;
}

bool TakeAfter(int descriptor, const fs::path& /*file*/, const fs::path& target)
{
    struct stat old = {};
    if (stat(target.c_str(), &old) == 0) {
        return GiveTo(descriptor, old);
    }
    return errno == ENOENT && fchmod(descriptor, DefaultMode()) == 0;
}

int OpenNameless()
{
    return memfd_create("radsel", MFD_CLOEXEC);
}

bool PutInPlace(int descriptor, const fs::path& file, const fs::path& target)
{
    if (fsync(descriptor) != 0 || rename(file.c_str(), target.c_str()) != 0) {
        return false;
    }
    SyncFolderOf(target);
    return true;
}

bool RemoveFile(const fs::path& file) noexcept
{
    return unlink(file.c_str()) == 0;
}
