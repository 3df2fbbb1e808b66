#include "host_defaults/answers.h"
#include "host_defaults/color_series.h"

#include <array>
#include <cstddef>

// The palette that drawings of all CAD programs share: nine fixed colours, then ten shades each of
// 24 hues, then greys. Divisions cut, as the published table does.

namespace host_defaults {

namespace {

/// Full intensity of a channel within a hue.
constexpr int kFull = 4;

constexpr std::array<COLORREF, kFirstShade> kFixed = {
    RGB(0, 0, 0),   RGB(255, 0, 0),   RGB(255, 255, 0),   RGB(0, 255, 0),     RGB(0, 255, 255),
    RGB(0, 0, 255), RGB(255, 0, 255), RGB(255, 255, 255), RGB(128, 128, 128), RGB(192, 192, 192)};
constexpr std::array<std::uint8_t, 6> kGreys = {51, 91, 132, 173, 214, 255};
/// Lightness in percent of the shades of a hue, each for a saturated colour and a pale one.
constexpr std::array<int, 5> kLightness = {100, 65, 50, 30, 15};

/// Intensities of red, green and blue, 0 to kFull, of a hue in steps of 15 degrees from red.
std::array<int, 3> Intensities(int hue)
{
    const int rising = hue % kFull;
    const int falling = kFull - rising;
    switch (hue / kFull) {
    case 0:
        return {kFull, rising, 0};
    case 1:
        return {falling, kFull, 0};
    case 2:
        return {0, kFull, rising};
    case 3:
        return {0, falling, kFull};
    case 4:
        return {rising, 0, kFull};
    default:
        return {kFull, 0, falling};
    }
}

std::uint8_t Channel(int lightness, int intensity, bool pale)
{
    // A pale colour is mixed half and half with the grey of its lightness.
    const int eighths = pale ? kFull + intensity : 2 * intensity;
    return static_cast<std::uint8_t>(255 * lightness * eighths / (100 * 2 * kFull));
}

COLORREF ShadeOf(int index)
{
    const std::array<int, 3> intensities = Intensities(index / kShadesPerHue - 1);
    const int shade = index % kShadesPerHue;
    const int lightness = kLightness[static_cast<std::size_t>(shade / 2)];
    const bool pale = shade % 2 != 0;
    return RGB(Channel(lightness, intensities[0], pale), Channel(lightness, intensities[1], pale),
               Channel(lightness, intensities[2], pale));
}

} // namespace

COLORREF GetRGBFromColor(int index)
{
    if (index < kFirstColorIndex || index > kLastColorIndex) {
        return RGB(0, 0, 0);
    }
    if (index < kFirstShade) {
        return kFixed[static_cast<std::size_t>(index)];
    }
    if (index < kFirstGrey) {
        return ShadeOf(index);
    }
    const std::uint8_t grey = kGreys[static_cast<std::size_t>(index - kFirstGrey)];
    return RGB(grey, grey, grey);
}

} // namespace host_defaults

COLORREF GetRGBFromColor(int index)
{
    return host_defaults::GetRGBFromColor(index);
}
