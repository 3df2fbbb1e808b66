#include "workbench/drawing/beside_window.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace workbench {

namespace {

constexpr int kGap = 12;

} // namespace

CBesideWindow::CBesideWindow(const QWidget& widget) : m_widget(widget)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool CBesideWindow::eventFilter(QObject* object, QEvent* event)
{
    auto* const dialog = qobject_cast<QWidget*>(object);
    if (event->type() != QEvent::Show || dialog == nullptr || !dialog->isModal()) {
        return false;
    }
    const QRect kept(m_widget.mapToGlobal(QPoint(0, 0)), m_widget.size());
    if (dialog->geometry().intersects(kept)) {
        // Where the screen is too narrow for both the dialog must stay on it whole.
        const int furthest = dialog->screen()->availableGeometry().right() - dialog->width();
        dialog->move(std::min(kept.right() + kGap, furthest), kept.top());
    }
    return false;
}

} // namespace workbench
