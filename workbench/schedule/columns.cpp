#include "workbench/schedule/columns.h"

#include <charconv>

namespace workbench {

double DecimalOf(float value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value);
    double result = 0.0;
    std::from_chars(digits, end.ptr, result);
    return result;
}

} // namespace workbench
