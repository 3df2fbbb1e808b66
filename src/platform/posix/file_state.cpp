#include "platform/file_state.h"

#include <sys/stat.h>

namespace {

std::int64_t Nanoseconds(const timespec& time)
{
    // A key to compare, which wraps for times of other centuries.
    constexpr std::uint64_t kASecond = 1'000'000'000;
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(time.tv_sec) * kASecond +
                                     static_cast<std::uint64_t>(time.tv_nsec));
}

} // namespace

std::optional<CFileState> StateOf(const std::filesystem::path& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return CFileState{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                      Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim)};
}
