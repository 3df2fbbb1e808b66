#pragma once

#include <cstddef>
#include <string>

/// Reading and writing on the system's file descriptors, in as many of its calls as that takes.

/// Reads that many bytes from the descriptor's position, fewer only where it ends before. Returns
/// how many those were, or below 0 with errno set; some may then have been read.
std::ptrdiff_t ReadUpTo(int descriptor, char* buffer, std::size_t count);

/// Writes all bytes at the descriptor's position. False with errno set if that fails; some may then
/// have been written.
bool WriteAll(int descriptor, const char* bytes, std::size_t count);

/// Appends what stands from the descriptor's position to its end. False with errno set if that
/// fails.
bool ReadAll(int descriptor, std::string& bytes);
