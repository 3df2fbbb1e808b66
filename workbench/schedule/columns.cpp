#include "workbench/schedule/columns.h"

#include "platform/decimal.h"

#include <charconv>

namespace workbench {

double DecimalOf(float value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value);
    double result = 0.0;
    FromChars(digits, end.ptr, result);
    return result;
}

} // namespace workbench
