#pragma once

#include <sys/stat.h>

namespace reference_host {

/// Whether a file or folder is the same one and unchanged, by its identity, its size and its times.
/// The time of the last change of state counts as well: copying tools set the other one back.
inline bool IsSameState(const struct stat& a, const struct stat& b)
{
    const auto isSameTime = [](const timespec& x, const timespec& y) {
        return x.tv_sec == y.tv_sec && x.tv_nsec == y.tv_nsec;
    };
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
           isSameTime(a.st_mtim, b.st_mtim) && isSameTime(a.st_ctim, b.st_ctim);
}

} // namespace reference_host
