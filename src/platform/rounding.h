#pragma once

#include <cmath>

/// Nearest multiple of `step`: floor(value / step + 0.5) * step, so that halves go upward, also
/// below zero. A step of 0.0 or less gives the value back untouched. Stands here whole, since a
/// filter pass rounds every row's outputs to steps of 1.0, which then cost no division.
inline double RoundTo(double value, double step)
{
    return 0.0 < step ? std::floor(value / step + 0.5) * step : value;
}

/// The same in single precision with a step of 1, cut to an integer; values beyond the range of int
/// come to its nearest end and not-a-number to 0.
int RoundToInt(float value);
