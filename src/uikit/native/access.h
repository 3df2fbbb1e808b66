#pragma once

#include "platform/bitmap.h"
#include "platform/color.h"
#include "platform/geometry.h"
#include "uikit/font.h"
#include "uikit/wnd.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>

/// The way from the kit's handles and values to the toolkit's, for the inside of uikit/ only.
struct CNativeRef
{
    QPointer<QWidget> widget;
};

struct CNativeAccess
{
    /// Null if the window has gone.
    static QWidget* Widget(const CWnd& wnd);
    template <class T>
    static T* As(const CWnd& wnd)
    {
        return qobject_cast<T*>(Widget(wnd));
    }
    static void Attach(CWnd& wnd, QWidget* widget);
    static void CopyTo(CWnd& target, const CWnd& source);
};

QString ToNative(const CString& text);
CString FromNative(const QString& text);
QColor ToNative(COLORREF color);
QImage ToNative(const CBitmap& bitmap);
QRect ToNative(const CRect& rect);
CRect FromNative(const QRect& rect);
/// The nearest font of the system, scaled with the dialogs.
QFont ToNative(const CFont& font);

/// Id of a control's widget; 0 for any other.
int GetControlId(const QWidget& widget);
void SetControlId(QWidget& widget, int id);
