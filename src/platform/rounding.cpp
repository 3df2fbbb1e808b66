#include "platform/rounding.h"

#include <cmath>
#include <limits>

int RoundToInt(float value)
{
    // The first value behind the range of int. The end of the range itself has no float of its own.
    constexpr float kBeyondInt = 2147483648.0F;

    const float rounded = std::floor(value + 0.5F);
    if (std::isnan(rounded)) {
        return 0;
    }
    if (rounded >= kBeyondInt) {
        return std::numeric_limits<int>::max();
    }
    if (rounded < -kBeyondInt) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(rounded);
}
