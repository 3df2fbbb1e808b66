#pragma once

#include "platform/text.h"

#include <cstdint>

/// The largest file of each kind, in bytes. All are far beyond what anybody delivers: they are
/// there so that a wrong file, or one that never ends, is refused before it fills the memory. In
/// memory a file takes up to eight times its size; a building that consists of nothing but empty
/// texts and lists, before it is refused, up to twenty-five times. docs/file-limits.md tells them
/// to users.

inline constexpr std::uint64_t kMegabyte = 1 << 20;

/// A maker's radiators, "hk.tga".
inline constexpr std::uint64_t kLargestCatalogue = 16 * kMegabyte;
/// A maker's valves, "ha.tga". Some makers list every length of every body: 100 MB happen.
inline constexpr std::uint64_t kLargestValveFile = 512 * kMegabyte;
/// A library of blocks, or any other drawing.
inline constexpr std::uint64_t kLargestDrawing = 32 * kMegabyte;
/// A building, or work kept for recovery: twenty thousand rooms with their radiators.
inline constexpr std::uint64_t kLargestBuilding = 64 * kMegabyte;
/// A list of connection types or of heating systems, or the switches of the help.
inline constexpr std::uint64_t kLargestList = 16 * kMegabyte;
/// The places of windows.
inline constexpr std::uint64_t kLargestPlacementFile = 16 * kMegabyte;
/// The settings of the reference host, and each record that it keeps from one use to the next.
inline constexpr std::uint64_t kLargestSettingsFile = 16 * kMegabyte;

/// Why a file beyond its limit is refused, for the user, with the limit in whole megabytes.
CString DescribeTooLarge(std::uint64_t limit);
