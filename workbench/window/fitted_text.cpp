#include "workbench/window/fitted_text.h"

#include <QFontMetricsF>
#include <QGuiApplication>

namespace workbench {

namespace {

/// A name cut to fewer characters than this, the ellipsis among them, tells nobody anything.
constexpr int kLeastCharacters = 6;

} // namespace

QFont PlanFont(int pixels, bool bold)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

double WidthOf(const QString& text, const QFont& font)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

std::optional<CFittedText> ShrinkText(const QString& text, double width, int pixels,
                                      int leastPixels, bool bold)
{
    for (int size = pixels; size >= leastPixels; --size) {
        const QFont font = PlanFont(size, bold);
        const double needed = WidthOf(text, font);
        if (needed <= width) {
            return CFittedText{text, font, needed};
        }
    }
    return std::nullopt;
}

std::optional<CFittedText> FitText(const QString& text, double width, int pixels, int leastPixels,
                                   bool bold)
{
    if (auto whole = ShrinkText(text, width, pixels, leastPixels, bold)) {
        return whole;
    }
    const QFont font = PlanFont(leastPixels, bold);
    const QString shortened = QFontMetricsF(font).elidedText(text, Qt::ElideRight, width);
    if (shortened.size() < kLeastCharacters) {
        return std::nullopt;
    }
    return CFittedText{shortened, font, WidthOf(shortened, font)};
}

} // namespace workbench
