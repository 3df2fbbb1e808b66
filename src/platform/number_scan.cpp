#include "platform/number_scan.h"

#include "platform/decimal.h"

#include <algorithm>
#include <limits>
#include <string>

namespace {

bool IsBlank(wchar_t c)
{
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}
bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

std::size_t SkipBlanks(std::wstring_view text, std::size_t position)
{
    while (position < text.size() && IsBlank(text[position])) {
        ++position;
    }
    return position;
}

/// Takes one sign, if there is one; true for a minus.
bool TakeSign(std::wstring_view text, std::size_t& position)
{
    if (position >= text.size() || (text[position] != L'-' && text[position] != L'+')) {
        return false;
    }
    return text[position++] == L'-';
}

/// The unsigned number at the start of a text in the form that FromChars reads, and what
/// decides between "too large" and "too small" when the value does not fit a double.
struct Decimal
{
    std::string digits;
    bool hasDigits = false;
    /// Power of ten of the first digit that is not 0.
    long long magnitude = 0;
    bool isZero = true;
};

void TakeDigits(std::wstring_view text, std::size_t& position, Decimal& number, bool fraction)
{
    long long leadingZeros = 0;
    long long wholeDigits = 0;
    for (; position < text.size() && IsDigit(text[position]); ++position) {
        number.hasDigits = true;
        number.digits += static_cast<char>(text[position]);
        if (!number.isZero) {
            ++wholeDigits;
        } else if (text[position] != L'0') {
            number.isZero = false;
            number.magnitude = fraction ? -leadingZeros - 1 : 0;
        } else {
            ++leadingZeros;
        }
    }
    if (!fraction) {
        number.magnitude += wholeDigits;
    }
}

/// The exponent counts only if digits follow it; otherwise the number ends before the "e".
void TakeExponent(std::wstring_view text, std::size_t position, Decimal& number)
{
    if (position >= text.size() || (text[position] != L'e' && text[position] != L'E')) {
        return;
    }
    ++position;
    const bool negative = TakeSign(text, position);
    if (position >= text.size() || !IsDigit(text[position])) {
        return;
    }
    constexpr long long kFarBeyondAnyDouble = 1'000'000'000'000;
    long long exponent = 0;
    for (; position < text.size() && IsDigit(text[position]); ++position) {
        if (exponent < kFarBeyondAnyDouble) {
            exponent = exponent * 10 + (text[position] - L'0');
        }
    }
    number.magnitude += negative ? -exponent : exponent;
    number.digits += negative ? "e-" : "e";
    number.digits += std::to_string(exponent);
}

Decimal TakeDecimal(std::wstring_view text, std::size_t position)
{
    Decimal number;
    TakeDigits(text, position, number, false);
    if (position < text.size() && text[position] == L'.') {
        number.digits += number.hasDigits ? "." : "0.";
        TakeDigits(text, ++position, number, true);
    }
    if (number.hasDigits) {
        TakeExponent(text, position, number);
    }
    return number;
}

double ToDouble(const Decimal& number)
{
    if (!number.hasDigits || number.isZero) {
        return 0.0;
    }
    double value = 0.0;
    const char* const first = number.digits.data();
    const auto result = FromChars(first, first + number.digits.size(), value);
    if (result.ec != std::errc::result_out_of_range) {
        return value;
    }
    return number.magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

} // namespace

int _wtoi(std::wstring_view text)
{
    std::size_t position = SkipBlanks(text, 0);
    const bool negative = TakeSign(text, position);
    constexpr long long kMax = std::numeric_limits<int>::max();
    long long value = 0;
    for (; position < text.size() && IsDigit(text[position]); ++position) {
        value = value * 10 + (text[position] - L'0');
        if (value > kMax + 1) {
            value = kMax + 1;
        }
    }
    if (negative) {
        return static_cast<int>(-value);
    }
    return static_cast<int>(value > kMax ? kMax : value);
}

double _wtof(std::wstring_view text)
{
    std::size_t position = SkipBlanks(text, 0);
    const bool negative = TakeSign(text, position);
    const Decimal number = TakeDecimal(text, position);
    const double value = ToDouble(number);
    return negative && number.hasDigits ? -value : value;
}

bool ScanShort(std::wstring_view text, std::size_t position, int width, short& value)
{
    position = SkipBlanks(text, position);
    const std::size_t end = std::min(text.size(), position + static_cast<std::size_t>(width));
    if (position >= end) {
        return false;
    }
    const bool negative = TakeSign(text, position);
    if (position >= end || !IsDigit(text[position])) {
        return false;
    }
    int number = 0;
    for (; position < end && IsDigit(text[position]); ++position) {
        number = number * 10 + (text[position] - L'0');
    }
    value = static_cast<short>(negative ? -number : number);
    return true;
}
