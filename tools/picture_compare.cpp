#include "tools/picture_compare.h"

#include "uikit/native/access.h"

#include <algorithm>
#include <array>

namespace {

/// Side of the squares that are looked at, in pixels, less than a check box has, and the distance
/// from one to the next.
constexpr int kSquare = 9;
constexpr int kStep = 3;

/// What a square may differ on average, out of 255. Letters that are smoothed with and without
/// hints differ by up to 7, a check box without a text and the bare window by 23.
constexpr double kLimit = 14.0;

/// What a single pixel may differ. Smoothing makes up to 99, most letters in the place of another
/// from 140 on.
constexpr int kPixelLimit = 120;

/// Pixels between two squares that are told as one place.
constexpr int kGap = 8;

struct Range
{
    int low = 255;
    int high = 0;
};

/// Darkest and brightest value of each channel in a pixel and those about it.
std::array<Range, 3> RangeAbout(const QImage& image, int x, int y)
{
    std::array<Range, 3> ranges;
    for (int j = std::max(0, y - 1); j <= std::min(image.height() - 1, y + 1); ++j) {
        for (int i = std::max(0, x - 1); i <= std::min(image.width() - 1, x + 1); ++i) {
            const QRgb pixel = image.pixel(i, j);
            const int values[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
            for (std::size_t c = 0; c < ranges.size(); ++c) {
                ranges[c].low = std::min(ranges[c].low, values[c]);
                ranges[c].high = std::max(ranges[c].high, values[c]);
            }
        }
    }
    return ranges;
}

/// By how much a pixel lies outside what the other picture has there and one pixel beside. A line
/// that is smoothed otherwise stays inside, a line where there was none does not.
int Excess(const QImage& image, const QImage& other, int x, int y)
{
    const QRgb pixel = image.pixel(x, y);
    if (pixel == other.pixel(x, y)) {
        return 0;
    }
    const std::array<Range, 3> ranges = RangeAbout(other, x, y);
    const int values[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
    int excess = 0;
    for (std::size_t c = 0; c < ranges.size(); ++c) {
        excess = std::max({excess, ranges[c].low - values[c], values[c] - ranges[c].high});
    }
    return excess;
}

/// What a pixel adds to its square; a loud one alone is as much as the square may differ.
double Weight(int excess)
{
    return excess > kPixelLimit ? kLimit * kSquare * kSquare + 1.0 : excess;
}

/// Sums of the differences over all rectangles from the upper left corner.
std::vector<double> Sums(const QImage& a, const QImage& b)
{
    const auto width = static_cast<std::size_t>(a.width()) + 1;
    std::vector<double> sums(width * (static_cast<std::size_t>(a.height()) + 1));
    for (int y = 0; y < a.height(); ++y) {
        double row = 0.0;
        for (int x = 0; x < a.width(); ++x) {
            row += Weight(std::max(Excess(a, b, x, y), Excess(b, a, x, y)));
            const std::size_t above =
                static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x) + 1;
            sums[above + width] = sums[above] + row;
        }
    }
    return sums;
}

/// Joins a square with all places that it touches.
void Add(std::vector<QRect>& places, QRect place)
{
    const auto touches = [&](const QRect& other) {
        return other.adjusted(-kGap, -kGap, kGap, kGap).intersects(place);
    };
    auto next = std::find_if(places.begin(), places.end(), touches);
    while (next != places.end()) {
        place |= *next;
        places.erase(next);
        next = std::find_if(places.begin(), places.end(), touches);
    }
    places.push_back(place);
}

std::vector<QRect> ChangedPlaces(const QImage& a, const QImage& b)
{
    const std::vector<double> sums = Sums(a, b);
    const auto sum = [&](int x, int y) {
        return sums[static_cast<std::size_t>(y) * (static_cast<std::size_t>(a.width()) + 1) +
                    static_cast<std::size_t>(x)];
    };
    std::vector<QRect> places;
    for (int y = 0; y + kSquare <= a.height(); y += kStep) {
        for (int x = 0; x + kSquare <= a.width(); x += kStep) {
            const double all = sum(x + kSquare, y + kSquare) - sum(x, y + kSquare) -
                               sum(x + kSquare, y) + sum(x, y);
            if (all > kLimit * kSquare * kSquare) {
                Add(places, {x, y, kSquare, kSquare});
            }
        }
    }
    return places;
}

/// The smallest control under the middle of a place.
QString ControlAt(const std::vector<CWindowPicture::Control>& controls, const QPoint& place)
{
    const CWindowPicture::Control* found = nullptr;
    const auto area = [](const QRect& rect) { return rect.width() * rect.height(); };
    for (const CWindowPicture::Control& control : controls) {
        if (control.place.contains(place) &&
            (found == nullptr || area(control.place) < area(found->place))) {
            found = &control;
        }
    }
    return found != nullptr ? found->name : "the window";
}

QString NameOf(const QWidget& widget)
{
    const int id = GetControlId(widget);
    QString name = id != 0 ? QString::number(id) : widget.objectName();
    if (name.startsWith("qt_")) {
        name.clear(); // an inner part of one of the toolkit's controls
    }
    const QString text = widget.property("text").toString();
    return text.isEmpty() ? name : QString("%1 \"%2\"").arg(name, text).trimmed();
}

} // namespace

CWindowPicture TakePicture(QWidget& window)
{
    CWindowPicture picture{window.grab().toImage().convertToFormat(QImage::Format_RGB32)};
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        const QString name = NameOf(*widget);
        if (widget->isVisible() && !name.isEmpty()) {
            picture.controls.push_back({{widget->mapTo(&window, QPoint()), widget->size()}, name});
        }
    }
    return picture;
}

QStringList FindChanges(const CWindowPicture& fresh, const QImage& kept)
{
    const QSize size = fresh.image.size();
    if (size != kept.size()) {
        return {QString("%1 x %2 pixels instead of %3 x %4")
                    .arg(size.width())
                    .arg(size.height())
                    .arg(kept.width())
                    .arg(kept.height())};
    }
    QStringList changes;
    for (const QRect& place :
         ChangedPlaces(fresh.image, kept.convertToFormat(QImage::Format_RGB32))) {
        changes += QString("differs at %1,%2 (%3 x %4 pixels) in %5")
                       .arg(place.x())
                       .arg(place.y())
                       .arg(place.width())
                       .arg(place.height())
                       .arg(ControlAt(fresh.controls, place.center()));
    }
    return changes;
}
