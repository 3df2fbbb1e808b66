#pragma once

#include <cstdint>

/// A colour as 0x00BBGGRR: a number of 32 bits, which on Windows is the system's own type of that
/// name.
#ifdef _WIN32
using COLORREF = unsigned long;
#else
using COLORREF = std::uint32_t;
#endif

/// A colour of its three parts, and these of a colour. The brackets around the names keep macros of
/// the same names, which many systems have, out of the declarations.
constexpr COLORREF(RGB)(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return static_cast<COLORREF>(red) | static_cast<COLORREF>(green) << 8 |
           static_cast<COLORREF>(blue) << 16;
}

constexpr std::uint8_t(GetRValue)(COLORREF color)
{
    return static_cast<std::uint8_t>(color);
}
constexpr std::uint8_t(GetGValue)(COLORREF color)
{
    return static_cast<std::uint8_t>(color >> 8);
}
constexpr std::uint8_t(GetBValue)(COLORREF color)
{
    return static_cast<std::uint8_t>(color >> 16);
}
