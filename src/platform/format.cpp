#include "platform/format.h"

#include "platform/decimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <string>

namespace {

CString Widen(const char* first, const char* last)
{
    return CString(first, last);
}

/// Above this, neighbouring doubles lie too far apart for the digits to be taken from a product.
constexpr double kMostDigits = 1e15;
constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

/// The size of the number in units of its last place. None where the product, which is rounded
/// itself, lies so near a half that it might go to the other side of it than the number does.
std::optional<long long> InLastPlaces(double value, int decimals)
{
    constexpr double kCertain = 0.25;
    if (decimals >= static_cast<int>(std::size(kPowersOfTen))) {
        return std::nullopt;
    }
    const double scaled = std::fabs(value) * kPowersOfTen[decimals];
    if (!(scaled < kMostDigits)) {
        return std::nullopt;
    }
    const double whole = std::nearbyint(scaled);
    if (std::fabs(scaled - whole) >= kCertain) {
        return std::nullopt;
    }
    return static_cast<long long>(whole);
}

void AssignDigits(CString& text, long long lastPlaces, int decimals, bool isNegative)
{
    // 15 digits, a sign and a point; a number of zeros where all of them are decimals.
    std::array<wchar_t, 20> buffer;
    wchar_t* const end = buffer.data() + buffer.size();
    wchar_t* first = end;
    for (int digits = 0; lastPlaces != 0 || digits <= decimals; ++digits) {
        if (digits == decimals && decimals > 0) {
            *--first = L'.';
        }
        *--first = static_cast<wchar_t>(L'0' + lastPlaces % 10);
        lastPlaces /= 10;
    }
    if (isNegative) {
        *--first = L'-';
    }
    text.assign(first, static_cast<std::size_t>(end - first));
}

} // namespace

void AssignFixed(CString& text, double value, int decimals)
{
    // Tables are full of numbers, and most of them are not near a half.
    if (const auto lastPlaces = InLastPlaces(value, decimals)) {
        AssignDigits(text, *lastPlaces, decimals, std::signbit(value));
        return;
    }
    // The longest double has 309 digits before the point; a sign and the point come to them.
    constexpr std::size_t kBeforeDecimals = 311;
    std::string buffer(kBeforeDecimals + static_cast<std::size_t>(decimals), '\0');
    char* const last = buffer.data() + buffer.size();
    const auto result =
        std::to_chars(buffer.data(), last, value, std::chars_format::fixed, decimals);
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
    FromChars(first, digits.ptr, rounded);
    const auto result = std::to_chars(first, last, rounded, std::chars_format::fixed);
    return Widen(first, result.ptr);
}
