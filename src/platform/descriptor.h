#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

/// Open files as the system's C library numbers them. What fails gives a number below 0, or false,
/// and sets errno; the caller closes what he has opened. Nothing is handed on to programs that this
/// one starts, and other programs may read, write, rename and remove a file that is open here.

enum class FileAccess
{
    read,
    write,
    readWrite
};

/// Opens a regular file that exists. Nothing else opens, and neither does a file for writing that
/// carries no write permission at all, whoever asks.
int OpenDescriptor(const std::filesystem::path& file, FileAccess access);

/// Reads or writes up to `count` bytes at the position and returns how many those were; 0 at the
/// end.
std::ptrdiff_t ReadDescriptor(int descriptor, void* buffer, std::size_t count);
std::ptrdiff_t WriteDescriptor(int descriptor, const void* buffer, std::size_t count);

/// Moves the position and returns it, in bytes from the start.
std::int64_t SeekDescriptor(int descriptor, std::int64_t position);
std::int64_t SeekDescriptorToEnd(int descriptor);
std::int64_t PositionOfDescriptor(int descriptor);

std::int64_t LengthOfDescriptor(int descriptor);
bool SetLengthOfDescriptor(int descriptor, std::int64_t length);

/// Returns when what was written lies on the disk.
bool SyncDescriptor(int descriptor);

bool CloseDescriptor(int descriptor);
