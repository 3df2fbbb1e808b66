#include "platform/encoding.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

} // namespace

wchar_t WideFromCp1252(std::uint8_t byte)
{
    return byte >= 0x80 && byte < 0xA0 ? kCp1252High[byte - 0x80U] : static_cast<wchar_t>(byte);
}

void AppendCp1252(CString& text, const std::uint8_t* bytes, std::size_t count)
{
    const std::size_t start = text.size();
    text.resize(start + count);
    std::transform(bytes, bytes + count, text.begin() + static_cast<std::ptrdiff_t>(start),
                   WideFromCp1252);
}

char Cp1252FromCodePoint(char32_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    const auto* const found = std::find(kCp1252High.begin(), kCp1252High.end(), c);
    return found == kCp1252High.end() ? '?'
                                      : static_cast<char>(0x80 + (found - kCp1252High.begin()));
}
