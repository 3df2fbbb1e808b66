#include "platform/temporary_file.h"

#include <cerrno>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// More writers than one file ever has at a time.
constexpr int kPlaces = 8;

/// Targets whose names begin with as many bytes share their places, which does no harm.
constexpr std::size_t kNameBytes = 200;

fs::path PlaceOf(const fs::path& target, int number)
{
    const std::string name = target.filename().native().substr(0, kNameBytes);
    return target.parent_path() /
           ("." + name + ".radsel-tmp" + (number > 1 ? std::to_string(number) : ""));
}

/// True if the locked file is still the one of that name, and no way to another file's content.
bool IsOurs(int descriptor, const fs::path& name)
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor, &opened) == 0 && lstat(name.c_str(), &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev &&
           S_ISREG(opened.st_mode) && opened.st_nlink == 1 && opened.st_uid == geteuid();
}

int OpenLeftover(const fs::path& name)
{
    return open(name.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

/// Takes a place that is nobody else's; below 0 if that fails.
int TakePlace(const fs::path& name)
{
    int descriptor = open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    const bool made = descriptor >= 0;
    if (!made && errno == EEXIST) {
        descriptor = OpenLeftover(name);
    }
    if (descriptor < 0) {
        return -1;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        if (IsOurs(descriptor, name)) {
            if (made || ftruncate(descriptor, 0) == 0) {
                return descriptor;
            }
            unlink(name.c_str());
        }
    } else if (made && errno != EWOULDBLOCK) {
        // Without locks nobody would ever know it for a leftover.
        unlink(name.c_str());
    }
    close(descriptor);
    return -1;
}

void RemoveLeftover(const fs::path& name)
{
    const int descriptor = OpenLeftover(name);
    if (descriptor < 0) {
        return;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 && IsOurs(descriptor, name)) {
        unlink(name.c_str());
    }
    close(descriptor);
}

} // namespace

int OpenTemporary(const fs::path& target, fs::path& temporary)
{
    int descriptor = -1;
    for (int number = 1; number <= kPlaces; ++number) {
        const fs::path place = PlaceOf(target, number);
        if (descriptor >= 0) {
            RemoveLeftover(place);
        } else if ((descriptor = TakePlace(place)) >= 0) {
            temporary = place;
        }
    }
    if (descriptor >= 0) {
        return descriptor;
    }
    std::string name = (target.parent_path() / ".radsel-XXXXXX.tmp").native();
    descriptor = mkostemps(name.data(), 4, O_CLOEXEC);
    temporary = descriptor >= 0 ? name : "";
    return descriptor;
}
