#include "uikit/native/contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// Least contrast of texts in common sizes, as the guidelines ask for.
constexpr double kLeastContrast = 4.5;

double Linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double LuminanceOf(const QColor& color)
{
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
           0.0722 * Linear(color.blueF());
}

QPalette::ColorRole InkOn(QPalette::ColorRole back)
{
    switch (back) {
    case QPalette::Base:
        return QPalette::Text;
    case QPalette::Button:
        return QPalette::ButtonText;
    default:
        return QPalette::WindowText;
    }
}

QColor Between(const QColor& a, const QColor& b)
{
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

} // namespace

double ContrastOf(const QColor& a, const QColor& b)
{
    constexpr double kFlare = 0.05;
    const auto [dark, light] = std::minmax({LuminanceOf(a), LuminanceOf(b)});
    return (light + kFlare) / (dark + kFlare);
}

bool IsReadable(const QColor& ink, const QColor& back)
{
    return ContrastOf(ink, back) >= kLeastContrast;
}

QColor ReadableInk(const QColor& wished, const QColor& back)
{
    if (IsReadable(wished, back)) {
        return wished;
    }
    return ContrastOf(Qt::black, back) >= ContrastOf(Qt::white, back) ? Qt::black : Qt::white;
}

void SetBack(QPalette& palette, QPalette::ColorRole back, const QColor& color)
{
    palette.setColor(back, color);
    SetInkFor(palette, back, color);
}

void SetInkFor(QPalette& palette, QPalette::ColorRole back, const QColor& color)
{
    const QPalette::ColorRole role = InkOn(back);
    const QColor before = palette.color(QPalette::Active, role);
    const QColor ink = ReadableInk(before, color);
    if (ink != before) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, Between(ink, color));
    }
}
