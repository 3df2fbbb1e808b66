#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

/// Files that show who uses something: one program at a time holds the lock of such a file. The
/// lock belongs to the open descriptor and ends with its process, however that ends; the caller
/// closes the descriptor. What fails gives a number below 0, or false, and sets errno.

/// Opens a file that every user may see, and makes it where it is missing; no link is followed.
/// Another user's file can often be read only, which `writable` tells.
int OpenLockFile(const std::filesystem::path& file, bool& writable);

/// The same for a file that only this user may open, to read and to write, and with links followed.
int OpenOwnLockFile(const std::filesystem::path& file);

enum class LockAnswer
{
    taken,
    /// Somebody else holds it; another descriptor of this process counts as somebody else.
    held,
    /// There is no lock to be had; errno says why.
    none,
};

/// Asks for the lock of an open file and does not wait for it.
LockAnswer TakeLock(int descriptor);

/// False if the file was taken away, or another one took its place, after it was opened.
bool IsStillAt(int descriptor, const std::filesystem::path& file);

/// How long ago the file was last written to or touched; nothing if the system does not tell.
std::optional<std::chrono::seconds> TimeSinceTouched(int descriptor);

/// Shows that somebody still uses what the file stands for.
bool TouchDescriptor(int descriptor);
