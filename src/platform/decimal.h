#pragma once

#include <charconv>

/// Reads the number at the start of [first, last) as std::from_chars does: independent of the
/// locale, with neither blanks nor a plus sign before it, and the double nearest to its decimal
/// places. Some standard libraries read whole numbers only. What cannot be read, or lies beyond the
/// type, leaves `value` as it was.
std::from_chars_result FromChars(const char* first, const char* last, double& value);

inline std::from_chars_result FromChars(const char* first, const char* last, int& value)
{
    return std::from_chars(first, last, value);
}
