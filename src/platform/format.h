#pragma once

#include "platform/text.h"

/// The number with exactly `decimals` places behind a point, as "%.<decimals>f" writes it in the
/// "C" locale, right-aligned with blanks to at least `width` characters. `decimals` is 0 or
/// more.
/// Not-a-number and infinity come out as "nan" and "inf", with a sign if it is set.
CString FormatFixed(double value, int decimals, int width = 0);

/// Makes `text` what FormatFixed(value, decimals) gives. Goes on with the text's memory, which
/// tells where many numbers are written.
void AssignFixed(CString& text, double value, int decimals);

/// The number in decimal digits, as "%d" writes it.
CString FormatInt(long long value);

/// The shortest text that reads back as exactly the same double.
CString FormatExact(double value);

/// The number without an exponent, rounded to 15 significant digits and without zeros at the end of
/// its decimals.
CString FormatPlain(double value);
