#pragma once

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

inline constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;

/// Whether what has that status carries some write permission, and this user may write to it.
inline bool MayWrite(const std::filesystem::path& path, const struct stat& status)
{
    return (status.st_mode & kAnyWriteBit) != 0 &&
           faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

inline bool AreTheSame(const struct stat& a, const struct stat& b)
{
    return a.st_ino == b.st_ino && a.st_dev == b.st_dev;
}
