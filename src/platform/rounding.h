#pragma once

/// Nearest multiple of `step`: floor(value / step + 0.5) * step, so that halves go upward, also
/// below zero. A step of 0.0 or less gives the value back untouched.
double RoundTo(double value, double step);

/// The same in single precision with a step of 1, cut to an integer; values beyond the range of int
/// come to its nearest end and not-a-number to 0.
int RoundToInt(float value);
