#include "workbench/drawing/color_index.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

constexpr COLORREF kBasic[] = {RGB(255, 0, 0),   RGB(255, 255, 0),   RGB(0, 255, 0),
                               RGB(0, 255, 255), RGB(0, 0, 255),     RGB(255, 0, 255),
                               kWhite,           RGB(128, 128, 128), RGB(192, 192, 192)};

constexpr COLORREF kGreys[] = {RGB(51, 51, 51),    RGB(91, 91, 91),    RGB(132, 132, 132),
                               RGB(173, 173, 173), RGB(214, 214, 214), kWhite};

constexpr int kFirstOfWheel = 10;
constexpr int kFirstGrey = 250;

constexpr double kBrightness[] = {1.0, 0.65, 0.5, 0.3, 0.15};

/// Share of a primary colour, 0 to 1, in the pure hue `hue` degrees away from it.
double ShareAt(double hue)
{
    const double distance = std::fabs(std::remainder(hue, 360.0));
    return std::clamp((120.0 - distance) / 60.0, 0.0, 1.0);
}

COLORREF ColorOfWheel(int place)
{
    const int spoke = place / 10;
    const double hue = 15.0 * spoke;
    const double brightness = kBrightness[place % 10 / 2];
    const bool isPale = place % 2 == 1;
    const auto part = [&](double primary) {
        const double share = ShareAt(hue - primary);
        const double value = brightness * (isPale ? 0.5 + 0.5 * share : share);
        return static_cast<std::uint8_t>(255.0 * value);
    };
    return RGB(part(0.0), part(120.0), part(240.0));
}

} // namespace

COLORREF ColorFromIndex(int index)
{
    if (index >= 1 && index < kFirstOfWheel) {
        return kBasic[index - 1];
    }
    if (index >= kFirstOfWheel && index < kFirstGrey) {
        return ColorOfWheel(index - kFirstOfWheel);
    }
    return index >= kFirstGrey && index <= 255 ? kGreys[index - kFirstGrey] : kWhite;
}

COLORREF PaperColorFromIndex(int index)
{
    const COLORREF color = ColorFromIndex(index);
    return color == kWhite ? RGB(0, 0, 0) : color;
}

} // namespace workbench
