#include "uikit/wnd.h"

#include "uikit/native/access.h"
#include "uikit/native/canvas_widget.h"
#include "uikit/native/dialog_window.h"
#include "uikit/native/small_widgets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr double kOpaque = 255.0;

QString TextOf(const QWidget& widget)
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        return edit->text();
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        return combo->currentText();
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        return group->title();
    }
    return widget.windowTitle();
}

void SetTextOf(QWidget& widget, const QString& text)
{
    if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
        edit->setText(text);
        if (edit->isReadOnly()) {
            // Where nobody types, a long text is read from its start.
            edit->setCursorPosition(0);
        }
    } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setText(text);
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(text);
    } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        if (combo->isEditable()) {
            combo->lineEdit()->setText(text);
        }
    } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
        group->setTitle(text);
    } else {
        widget.setWindowTitle(text);
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

int CWnd::GetDlgCtrlId() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr ? GetControlId(*widget) : 0;
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

bool CWnd::IsWindowEnabled() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    return widget != nullptr && widget->isEnabled();
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
    return widget != nullptr ? FromNative(QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()))
                             : CRect();
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
        dialog->ApplyMinMax(ToNative(rect).size());
    }
    widget->setGeometry(ToNative(rect));
}

void CWnd::SetFocus()
{
    if (QWidget* widget = CNativeAccess::Widget(*this)) {
        widget->setFocus(Qt::TabFocusReason);
    }
}

bool CWnd::HasFocus() const
{
    const QWidget* widget = CNativeAccess::Widget(*this);
    const QWidget* focus = widget != nullptr ? widget->window()->focusWidget() : nullptr;
    return focus != nullptr && (focus == widget || focus == widget->focusProxy());
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

void CWnd::SetToolTip(const CString& html)
{
    if (QWidget* widget = CNativeAccess::Widget(*this)) {
        widget->setToolTip(ToNative(html));
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

void CWnd::UpdateWindow()
{
    QWidget* widget = CNativeAccess::Widget(*this);
    if (widget != nullptr && widget->isVisible() &&
        !widget->testAttribute(Qt::WA_WState_InPaintEvent)) {
        widget->repaint();
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
