#pragma once

#include "platform/text.h"

/// Nearest multiple of `step`: floor(value / step + 0.5) * step, so that halves go upward, also
/// below zero. A step of 0.0 or less gives the value back untouched.
double RoundTo(double value, double step);

/// The same in single precision with a step of 1, cut to an integer; values beyond the range of int
/// come to its nearest end and not-a-number to 0.
int RoundToInt(float value);

/// Replaces every "," by ".".
void CommaToPoint(CString& text);

/// The number at the start of a typed text, with a comma taken as a point. A text without a number
/// gives 0.0; what follows the number is ignored.
double ParseNumber(const CString& text);

/// The number with 0, 1, 3 or 4 decimals as asked, with 6 for any count from 5 on, and with 2 for
/// 2 and for any negative count. There is no form with five decimals.
CString FormatNumber(double value, int decimals);
