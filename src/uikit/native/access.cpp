#include "uikit/native/access.h"

#include "uikit/application.h"

#include <QFontMetricsF>
#include <QVariant>

#include <algorithm>

namespace {

constexpr char kIdProperty[] = "radselId";

/// Width of a column of a fixed-pitch font for each pixel of its line's height. Heads of such rows
/// are written for it.
constexpr double kFixedPitchWidth = 0.6;

/// Lines of a font are higher than its nominal size; the height asked for is that of a line.
int PixelSizeForLine(QFont font, int height)
{
    int size = height;
    do {
        font.setPixelSize(size);
    } while (QFontMetrics(font).height() > height && --size > 1);
    return size;
}

} // namespace

QWidget* CNativeAccess::Widget(const CWnd& wnd)
{
    return wnd.m_native ? wnd.m_native->widget.data() : nullptr;
}

void CNativeAccess::Attach(CWnd& wnd, QWidget* widget)
{
    wnd.m_native = std::make_shared<CNativeRef>(CNativeRef{widget});
}

void CNativeAccess::CopyTo(CWnd& target, const CWnd& source)
{
    target.m_native = source.m_native;
}

QString ToNative(const CString& text)
{
    return QString::fromStdWString(text);
}

CString FromNative(const QString& text)
{
    return text.toStdWString();
}

QColor ToNative(COLORREF color)
{
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

QImage ToNative(const CBitmap& bitmap)
{
    if (bitmap.IsEmpty()) {
        return {};
    }
    return QImage(bitmap.GetData(), bitmap.GetWidth(), bitmap.GetHeight(),
                  qsizetype{bitmap.GetWidth()} * 4, QImage::Format_RGBA8888)
        .copy();
}

QRect ToNative(const CRect& rect)
{
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

CRect FromNative(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

QFont ToNative(const CFont& font)
{
    QFont native(ToNative(font.face));
    native.setStyleHint(font.fixedPitch ? QFont::Monospace : QFont::SansSerif);
    native.setFixedPitch(font.fixedPitch);
    // Thin faces are rarely there, and what stands in for them is too faint to read.
    native.setWeight(static_cast<QFont::Weight>(std::max(font.weight, int(QFont::Normal))));
    native.setItalic(font.italic);
    const int height = qRound(font.height * GetDialogScale());
    native.setPixelSize(PixelSizeForLine(native, height));
    if (font.fixedPitch) {
        const double wanted = kFixedPitchWidth * height;
        const double present = QFontMetricsF(native).horizontalAdvance('0');
        native.setLetterSpacing(QFont::AbsoluteSpacing, wanted - present);
    }
    return native;
}

int GetControlId(const QWidget& widget)
{
    return widget.property(kIdProperty).toInt();
}

void SetControlId(QWidget& widget, int id)
{
    widget.setProperty(kIdProperty, id);
}
