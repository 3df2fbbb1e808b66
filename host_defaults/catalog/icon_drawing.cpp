#include "host_defaults/catalog/icon_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace host_defaults {

namespace {

/// Samples along each side of a pixel; their square stays within the range of an alpha.
constexpr int kSamples = 8;

/// Moves the range [from, to] to whole pixels. Its middle goes to the nearest half pixel and its
/// width follows, so that what is symmetrical in the drawing is so on every screen.
void SnapRange(double& from, double& to)
{
    const double twiceMiddle = std::round(from + to);
    const double parity = std::abs(std::fmod(twiceMiddle, 2.0));
    const double width = std::max(2.0 * std::round((to - from - parity) / 2.0) + parity, 1.0);
    from = std::floor((twiceMiddle - width) / 2.0);
    to = from + width;
}

CIconShape ToPixels(CIconShape shape, double scale, double left, double top)
{
    for (CIconPoint& point : shape.points) {
        point = {left + point.x * scale, top + point.y * scale};
    }
    shape.size *= scale;
    if (shape.form == IconForm::box) {
        SnapRange(shape.points[0].x, shape.points[1].x);
        SnapRange(shape.points[0].y, shape.points[1].y);
    }
    return shape;
}

bool IsInPolygon(const std::vector<CIconPoint>& corners, const CIconPoint& at)
{
    bool inside = false;
    for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++) {
        const CIconPoint& a = corners[i];
        const CIconPoint& b = corners[before];
        if ((a.y > at.y) != (b.y > at.y) && at.x < a.x + (at.y - a.y) * (b.x - a.x) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside;
}

double DistanceToSegment(const CIconPoint& a, const CIconPoint& b, const CIconPoint& at)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square == 0.0 ? 0.0 : ((at.x - a.x) * dx + (at.y - a.y) * dy) / square;
    const double part = std::clamp(along, 0.0, 1.0);
    return std::hypot(at.x - a.x - part * dx, at.y - a.y - part * dy);
}

bool IsOnLine(const CIconShape& line, const CIconPoint& at)
{
    for (std::size_t i = 1; i < line.points.size(); ++i) {
        if (DistanceToSegment(line.points[i - 1], line.points[i], at) <= line.size / 2.0) {
            return true;
        }
    }
    return false;
}

bool IsInBox(const CIconShape& box, const CIconPoint& at)
{
    const CIconPoint& a = box.points[0];
    const CIconPoint& b = box.points[1];
    if (at.x < a.x || at.x > b.x || at.y < a.y || at.y > b.y) {
        return false;
    }
    const double radius = std::min({box.size, (b.x - a.x) / 2.0, (b.y - a.y) / 2.0});
    const double dx = std::max({a.x + radius - at.x, at.x - b.x + radius, 0.0});
    const double dy = std::max({a.y + radius - at.y, at.y - b.y + radius, 0.0});
    return std::hypot(dx, dy) <= radius || dx == 0.0 || dy == 0.0;
}

bool Covers(const CIconShape& shape, const CIconPoint& at)
{
    switch (shape.form) {
    case IconForm::polygon:
        return IsInPolygon(shape.points, at);
    case IconForm::line:
        return IsOnLine(shape, at);
    case IconForm::circle:
        return std::hypot(at.x - shape.points[0].x, at.y - shape.points[0].y) <= shape.size;
    case IconForm::box:
        return IsInBox(shape, at);
    }
    return false;
}

/// The colours that the samples of a pixel saw.
struct CSampleSum
{
    int red = 0, green = 0, blue = 0, count = 0;

    void Add(COLORREF color)
    {
        red += GetRValue(color);
        green += GetGValue(color);
        blue += GetBValue(color);
        ++count;
    }
};

/// Looks at one pixel. Each sample sees the topmost shape only, so that no seam shows where shapes
/// meet.
CSampleSum Sample(const std::vector<CIconShape>& shapes, int x, int y)
{
    CSampleSum sum;
    for (int i = 0; i < kSamples * kSamples; ++i) {
        const int column = i % kSamples;
        const int row = i / kSamples;
        const CIconPoint at = {x + (column + 0.5) / kSamples, y + (row + 0.5) / kSamples};
        const auto top = std::find_if(shapes.rbegin(), shapes.rend(),
                                      [&](const CIconShape& shape) { return Covers(shape, at); });
        if (top != shapes.rend()) {
            sum.Add(top->color);
        }
    }
    return sum;
}

void SetMean(CBitmap& bitmap, int x, int y, const CSampleSum& sum)
{
    if (sum.count == 0) {
        return;
    }
    const auto mean = [&](int channel) { return static_cast<std::uint8_t>(channel / sum.count); };
    bitmap.SetPixel(x, y, RGB(mean(sum.red), mean(sum.green), mean(sum.blue)),
                    static_cast<std::uint8_t>(sum.count * 255 / (kSamples * kSamples)));
}

} // namespace

CBitmap DrawIcon(const std::vector<CIconShape>& shapes, int width, int height)
{
    const int side = std::min(width, height);
    const int left = (width - side) / 2;
    const int top = (height - side) / 2;
    std::vector<CIconShape> scaled;
    for (const CIconShape& shape : shapes) {
        scaled.push_back(ToPixels(shape, side / kIconGrid, left, top));
    }
    CBitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            SetMean(bitmap, x, y, Sample(scaled, x, y));
        }
    }
    return bitmap;
}

} // namespace host_defaults
