#include "uikit/wnd.h"

#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/dialog_window.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

namespace {

constexpr double kOpaque = 255.0;

/// The property in which a window of that kind keeps its text.
const char* TextProperty(const QWidget& widget)
{
    for (const char* name : {"text", "currentText", "title"}) {
        if (widget.metaObject()->indexOfProperty(name) >= 0) {
            return name;
        }
    }
    return "windowTitle";
}

QString TextOf(const QWidget& widget)
{
    return widget.property(TextProperty(widget)).toString();
}

void SetTextOf(QWidget& widget, const QString& text)
{
    const auto* combo = qobject_cast<QComboBox*>(&widget);
    if (combo == nullptr || combo->isEditable()) {
        widget.setProperty(TextProperty(widget), text);
    }
    auto* edit = qobject_cast<QLineEdit*>(&widget);
    if (edit != nullptr && edit->isReadOnly()) {
        // Where nobody types, a long text is read from its start.
        edit->setCursorPosition(0);
    }
}

QRect InsideOf(QWidget& widget)
{
    if (const auto* dialog = qobject_cast<CDialogWindow*>(&widget)) {
        return dialog->Client().rect();
    }
    return QRect(QPoint(), widget.contentsRect().size());
}

} // namespace

CWnd::~CWnd() = default;

bool CWnd::IsWindow() const
{
    return CNativeAccess::Widget(*this) != nullptr;
}

void CWnd::SetWindowText(const CString& text)
{
    QWidget* widget = CNativeAccess::Widget(*this);
    if (widget != nullptr && TextOf(*widget) != ToNative(text)) {
        SetTextOf(*widget, ToNative(text));
    }
}

CString CWnd::GetWindowText() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr ? FromNative(TextOf(*widget)) : CString();
}

void CWnd::EnableWindow(bool enable)
{
    if (QWidget* widget = CNativeAccess::Widget(*this)) {
        widget->setEnabled(enable);
    }
}

void CWnd::ShowWindow(bool show)
{
    if (QWidget* widget = CNativeAccess::Widget(*this)) {
        widget->setVisible(show);
    }
}

bool CWnd::IsWindowVisible() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr && widget->isVisible();
}

CRect CWnd::GetClientRect() const
{
    QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr ? FromNative(InsideOf(*widget)) : CRect();
}

CRect CWnd::GetWindowRect() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    if (widget == nullptr) {
        return {};
    }
    const auto* dialog = qobject_cast<const CDialogWindow*>(widget);
    const QSize size = dialog != nullptr ? dialog->WholeSize() : widget->size();
    return FromNative(QRect(widget->mapToGlobal(QPoint(0, 0)), size));
}

CRect CWnd::GetPlace() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr ? FromNative(widget->geometry()) : CRect();
}

void CWnd::MoveWindow(const CRect& rect)
{
    QWidget* widget = CNativeAccess::Widget(*this);
    if (widget == nullptr) {
        return;
    }
    if (auto* dialog = qobject_cast<CDialogWindow*>(widget)) {
        dialog->Place(ToNative(rect));
    } else {
        widget->setGeometry(ToNative(rect));
    }
}

void CWnd::SetFocus()
{
    if (QWidget* widget = CNativeAccess::Widget(*this)) {
        widget->setFocus(Qt::TabFocusReason);
    }
}

void CWnd::SetFont(const CFont& font)
{
    QWidget* widget = CNativeAccess::Widget(*this);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        combo->view()->setFont(ToNative(font));
    }
    if (widget != nullptr) {
        widget->setFont(ToNative(font));
    }
}

void CWnd::Invalidate()
{
    QWidget* widget = CNativeAccess::Widget(*this);
    if (auto* canvas = qobject_cast<CCanvasWidget*>(widget)) {
        canvas->Erase();
    } else if (widget != nullptr) {
        widget->update();
    }
}

void CWnd::SetRedraw(bool redraw)
{
    if (QWidget* widget = CNativeAccess::Widget(*this)) {
        widget->setUpdatesEnabled(redraw);
    }
}

bool CWnd::SetAlpha(int alpha)
{
    QWidget* widget = CNativeAccess::Widget(*this);
    if (widget != nullptr) {
        widget->window()->setWindowOpacity(alpha / kOpaque);
    }
    return widget != nullptr;
}

int CWnd::GetAlpha() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr ? qRound(widget->window()->windowOpacity() * kOpaque) : 0;
}
