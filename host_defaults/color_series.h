#pragma once

namespace host_defaults {

/// Where the series of the 255 colours begin: nine fixed ones, ten shades a hue, greys.
inline constexpr int kFirstShade = 10;
inline constexpr int kShadesPerHue = 10;
inline constexpr int kFirstGrey = 250;

} // namespace host_defaults
