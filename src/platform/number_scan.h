#pragma once

#include <cstddef>
#include <string_view>

/// Whole number at the start of a text: leading blanks, one sign, digits; the rest is ignored.
/// A text without a number gives 0. Beyond the range of int the nearest end of it is the result.
int _wtoi(std::wstring_view text);

/// Real number at the start of a text: leading blanks, one sign, digits with at most one point,
/// an exponent if digits follow its "e"; the rest is ignored. A text without a number gives 0.0.
/// No hexadecimal form, no infinity, no "nan", and a comma ends the number whatever the locale.
/// Too large a value gives infinity, too small a one zero, each with its sign.
double _wtof(std::wstring_view text);

/// Scans a short integer at `position` as a "%<width>hd" scan does: leading blanks are skipped and
/// do not count towards `width`, a sign does. Returns false and leaves `value` alone if no digit
/// stands there. `width` is 1 to 4, so that every result fits.
bool ScanShort(std::wstring_view text, std::size_t position, int width, short& value);
