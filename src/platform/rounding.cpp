#include "platform/rounding.h"

#include <cmath>
#include <limits>

namespace {

template <class Real>
Real RoundToStep(Real value, Real step)
{
    return std::floor(value / step + Real(0.5)) * step;
}

} // namespace

double RoundTo(double value, double step)
{
    return 0.0 < step ? RoundToStep(value, step) : value;
}

int RoundToInt(float value)
{
    // The first value behind the range of int. The end of the range itself has no float of its own.
    constexpr float kBeyondInt = 2147483648.0F;

    const float rounded = RoundToStep(value, 1.0F);
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
