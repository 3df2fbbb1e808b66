#include "platform/temporary_places.h"

#include "platform/posix/status.h"

#include <cerrno>
#include <cstdlib>
#include <string>

#include <sys/file.h>

namespace fs = std::filesystem;

namespace {

/// True if the locked file is still the one of that name, and no way to another file's content.
bool IsOurs(int descriptor, const fs::path& place)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor, &opened) == 0 && lstat(place.c_str(), &named) == 0 &&
           AreTheSame(opened, named) && S_ISREG(opened.st_mode) && opened.st_nlink == 1 &&
           opened.st_uid == geteuid();
}

int OpenLeftover(const fs::path& place)
{
    return open(place.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

} // namespace

int TakePlace(const fs::path& place)
{
    int descriptor = open(place.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    const bool made = descriptor >= 0;
    if (!made && errno == EEXIST) {
        descriptor = OpenLeftover(place);
    }
    if (descriptor < 0) {
        return -1;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        if (IsOurs(descriptor, place)) {
            if (made || ftruncate(descriptor, 0) == 0) {
                return descriptor;
            }
            unlink(place.c_str());
        }
    } else if (made && errno != EWOULDBLOCK) {
        // Without locks nobody would ever know it for a leftover.
        unlink(place.c_str());
    }
    close(descriptor);
    return -1;
}

void RemoveLeftover(const fs::path& place)
{
    const int descriptor = OpenLeftover(place);
    if (descriptor < 0) {
        return;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 && IsOurs(descriptor, place)) {
        unlink(place.c_str());
    }
    close(descriptor);
}

int MakeUnusedPlace(const fs::path& folder, fs::path& place)
{
    std::string name = (folder / ".radsel-XXXXXX.tmp").native();
    const int descriptor = mkostemps(name.data(), 4, O_CLOEXEC);
    place = descriptor >= 0 ? name : "";
    return descriptor;
}
