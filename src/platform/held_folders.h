#pragma once

#include <compare>
#include <cstdint>

/// A folder by the numbers that the system knows it by.
struct CFolderKey
{
    std::uint64_t nDevice = 0;
    std::uint64_t nFile = 0;

    auto operator<=>(const CFolderKey&) const = default;
};

/// Notes that this process holds the lock of a folder; false if it does already. The system would
/// let a process wait for itself.
bool HoldFolder(const CFolderKey& folder);

void ReleaseFolder(const CFolderKey& folder);
