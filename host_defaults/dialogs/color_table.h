#pragma once

#include "platform/export.h"

namespace host_defaults {

/// How the 255 colours stand in rows and columns when the user chooses one. The top row holds the
/// fixed colours at its left and the greys at its right; below it each column holds one hue, from
/// dark over full to pale and dark again.

inline constexpr int kColorRows = 11;
inline constexpr int kColorColumns = 24;

struct CColorPlace
{
    int row = 0;
    int column = 0;

    friend bool operator==(const CColorPlace&, const CColorPlace&) = default;
};

/// Place of a colour index, 1 to 255.
HOST_API CColorPlace PlaceOfColor(int index);

enum class ColorMove
{
    left,
    right,
    up,
    down
};

/// The colour next to `index` in a direction: the nearest one where the top row has a gap, and
/// `index` itself at the edge. From no colour (0) every move leads to the first.
HOST_API int NeighbourOf(int index, ColorMove move);

} // namespace host_defaults
