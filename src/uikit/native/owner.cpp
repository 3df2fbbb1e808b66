#include "uikit/native/owner.h"

#include "uikit/owner_window.h"

#include <QWidget>
#include <QWindow>

namespace {

std::uint64_t g_owner = 0;

} // namespace

void SetOwnerWindow(std::uint64_t window)
{
    g_owner = window;
}

void PutAboveOwner(QWidget& window)
{
    if (g_owner == 0 || window.parentWidget() != nullptr) {
        return;
    }
    QWindow* const owner = QWindow::fromWinId(static_cast<WId>(g_owner));
    if (owner == nullptr) {
        return;
    }
    // It stands for the other program's window, which stays when it goes.
    QObject::connect(&window, &QObject::destroyed, &window, [owner] { delete owner; });
    window.winId();
    window.windowHandle()->setTransientParent(owner);
}
