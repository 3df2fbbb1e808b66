#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

/// What tells a file or folder from another one, and from itself once it has been changed: its
/// identity, its size and its times. The time of the last change of state counts as well, since
/// copying tools set the other one back.
struct CFileState
{
    std::uint64_t nDevice = 0;
    std::uint64_t nFile = 0;
    std::uint64_t nSize = 0;
    /// Times in the finest unit that the system keeps, from a start of its own.
    std::int64_t nWritten = 0;
    std::int64_t nChanged = 0;

    bool operator==(const CFileState&) const = default;
};

/// The state of a file or folder, behind links; nothing if the system does not tell.
std::optional<CFileState> StateOf(const std::filesystem::path& path);
