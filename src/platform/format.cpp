#include "platform/format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

CString Widen(const char* first, const char* last)
{
    return CString(first, last);
}

/// True for the whole numbers that most measures and outputs are. Zero may have a sign to show.
bool IsPlainWhole(double value)
{
    constexpr double kLargest = 1e15;
    return value != 0.0 && std::fabs(value) < kLargest && value == std::trunc(value);
}

} // namespace

void AssignFixed(CString& text, double value, int decimals)
{
    // The longest double has 309 digits before the point; sign, point and nine decimals follow.
    std::array<char, 340> buffer;
    char* const last = buffer.data() + buffer.size();
    const auto result =
        decimals == 0 && IsPlainWhole(value)
            ? std::to_chars(buffer.data(), last, static_cast<long long>(value))
            : std::to_chars(buffer.data(), last, value, std::chars_format::fixed, decimals);
    text.assign(buffer.data(), result.ptr);
}

CString FormatFixed(double value, int decimals, int width)
{
    CString text;
    AssignFixed(text, value, decimals);
    const auto wanted = static_cast<std::size_t>(width > 0 ? width : 0);
    if (text.size() < wanted) {
        text.insert(0, wanted - text.size(), L' ');
    }
    return text;
}

CString FormatInt(long long value)
{
    return std::to_wstring(value);
}

CString FormatExact(double value)
{
    std::array<char, 32> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return Widen(buffer.data(), result.ptr);
}

CString FormatPlain(double value)
{
    constexpr int kDecimals = std::numeric_limits<double>::digits10 - 1;
    // The smallest double has 323 zeros behind the point.
    std::array<char, 350> buffer;
    char* const first = buffer.data();
    char* const last = first + buffer.size();
    const auto digits = std::to_chars(first, last, value, std::chars_format::scientific, kDecimals);
    double rounded = value;
    std::from_chars(first, digits.ptr, rounded);
    const auto result = std::to_chars(first, last, rounded, std::chars_format::fixed);
    return Widen(first, result.ptr);
}
