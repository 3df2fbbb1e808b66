#pragma once

#include <QFont>
#include <QString>

#include <optional>

namespace workbench {

/// A text and the font in which it has its place.
struct CFittedText
{
    QString strText;
    QFont font;
    /// In pixels.
    double dWidth = 0.0;
};

/// The application's font in a size in pixels.
QFont PlanFont(int pixels, bool bold);

double WidthOf(const QString& text, const QFont& font);

/// The text no wider than `width` pixels: in a font of `pixels` if it fits, else of the largest one
/// down to `leastPixels` that does. Nothing if none does.
std::optional<CFittedText> ShrinkText(const QString& text, double width, int pixels,
                                      int leastPixels, bool bold);

/// The same, but what does not fit in `leastPixels` either is shortened with an ellipsis. Nothing
/// if next to nothing of it would be left.
std::optional<CFittedText> FitText(const QString& text, double width, int pixels, int leastPixels,
                                   bool bold);

} // namespace workbench
