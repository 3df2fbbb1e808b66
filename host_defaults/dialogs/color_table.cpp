#include "host_defaults/dialogs/color_table.h"

#include "host/host_base.h"
#include "host_defaults/color_series.h"

#include <array>
#include <cstddef>
#include <cstdlib>
#include <optional>

namespace host_defaults {

namespace {

constexpr int kGreyColumn = kColorColumns - (kLastColorIndex - kFirstGrey + 1);

/// Row of each shade of a hue, counted below the top row: the saturated shades (even) rise from the
/// darkest to the full colour, the pale ones (odd) fall back to dark.
constexpr std::array<int, kShadesPerHue> kShadeRows = {4, 5, 3, 6, 2, 7, 1, 8, 0, 9};

/// How far `to` lies from `from`; nothing if a move in that direction does not lead there.
std::optional<int> Distance(const CColorPlace& from, const CColorPlace& to, ColorMove move)
{
    const int rows = to.row - from.row;
    const int columns = to.column - from.column;
    const bool leadsThere = (move == ColorMove::left && rows == 0 && columns < 0) ||
                            (move == ColorMove::right && rows == 0 && columns > 0) ||
                            (move == ColorMove::up && rows == -1) ||
                            (move == ColorMove::down && rows == 1);
    return leadsThere ? std::optional(std::abs(columns)) : std::nullopt;
}

} // namespace

CColorPlace PlaceOfColor(int index)
{
    if (index < kFirstShade) {
        return {0, index - kFirstColorIndex};
    }
    if (index >= kFirstGrey) {
        return {0, kGreyColumn + index - kFirstGrey};
    }
    const auto shade = static_cast<std::size_t>(index % kShadesPerHue);
    return {1 + kShadeRows[shade], index / kShadesPerHue - 1};
}

int NeighbourOf(int index, ColorMove move)
{
    if (index == 0) {
        return kFirstColorIndex;
    }
    int neighbour = index;
    int least = kColorColumns;
    for (int other = kFirstColorIndex; other <= kLastColorIndex; ++other) {
        const std::optional<int> distance =
            Distance(PlaceOfColor(index), PlaceOfColor(other), move);
        if (distance && *distance < least) {
            neighbour = other;
            least = *distance;
        }
    }
    return neighbour;
}

} // namespace host_defaults
