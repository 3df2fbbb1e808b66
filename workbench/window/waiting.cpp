#include "workbench/window/waiting.h"

#include <QGuiApplication>
#include <QStatusBar>

namespace workbench {

CWaiting::CWaiting(const QWidget& window, const QString& what)
    : m_pBar(window.findChild<QStatusBar*>())
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (m_pBar != nullptr) {
        m_pBar->showMessage(what);
        // Nothing else is painted before the work is done.
        m_pBar->repaint();
    }
}

CWaiting::~CWaiting()
{
    if (m_pBar != nullptr) {
        m_pBar->clearMessage();
    }
    QGuiApplication::restoreOverrideCursor();
}

} // namespace workbench
