#pragma once

#include "platform/text.h"

/// Replaces every "," by ".".
void CommaToPoint(CString& text);

/// The number at the start of a typed text, with a comma taken as a point. A text without a number
/// gives 0.0; what follows the number is ignored.
double ParseNumber(const CString& text);

/// The number with 0, 1, 3 or 4 decimals as asked, with 6 for any count from 5 on, and with 2 for
/// 2 and for any negative count. There is no form with five decimals.
CString FormatNumber(double value, int decimals);
