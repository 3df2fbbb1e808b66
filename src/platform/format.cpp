#include "platform/format.h"

#include <array>
#include <charconv>

namespace {

CString Widen(const char* first, const char* last)
{
    return CString(first, last);
}

} // namespace

CString FormatFixed(double value, int decimals, int width)
{
    // The longest double has 309 digits before the point; sign, point and nine decimals follow.
    std::array<char, 340> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    CString text = Widen(buffer.data(), result.ptr);
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
