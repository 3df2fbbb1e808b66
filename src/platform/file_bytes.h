#pragma once

#include <cstddef>
#include <string>

/// Reading and writing on the system's file descriptors, whole or not at all.

/// Writes all bytes at the descriptor's position. False with errno set if that fails; some may then
/// have been written.
bool WriteAll(int descriptor, const char* bytes, std::size_t count);

/// Appends what stands from the descriptor's position to its end. False with errno set if that
/// fails.
bool ReadAll(int descriptor, std::string& bytes);
