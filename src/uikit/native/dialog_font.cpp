#include "uikit/native/dialog_font.h"

#include "uikit/application.h"
#include "uikit/native/access.h"

#include <QFontMetrics>

#include <utility>

namespace {

/// Height in pixels of the font for which templates are made.
constexpr int kTemplatePixels = 11;

double g_wantedPoints = 0;

DialogFont& CurrentFont()
{
    static DialogFont font;
    return font;
}

} // namespace

QFont GetDialogFont()
{
    const DialogFont& current = CurrentFont();
    QFont font(ToNative(current.face));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(g_wantedPoints > 0 ? g_wantedPoints : current.points);
    return font;
}

CDialogFontScope::CDialogFontScope(const DialogFont& font)
    : m_previous(std::exchange(CurrentFont(), font))
{
}

CDialogFontScope::~CDialogFontScope()
{
    CurrentFont() = std::move(m_previous);
}

QSize GetDialogBaseUnits(const QFont& font)
{
    const QFontMetrics metrics(font);
    const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const int width = (metrics.horizontalAdvance(letters) / 26 + 1) / 2;
    return {width, metrics.height()};
}

double GetDialogScale()
{
    QFont standard = GetDialogFont();
    const int actual = QFontMetrics(standard).height();
    standard.setPixelSize(kTemplatePixels);
    return double(actual) / QFontMetrics(standard).height();
}

void SetDialogFontSize(double points)
{
    g_wantedPoints = points;
}
