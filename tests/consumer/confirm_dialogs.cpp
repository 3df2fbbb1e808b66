// Loaded ahead of a program that shows dialogs, confirms each of them with Enter once it has done
// what it does by itself after opening.

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace {

/// Later than the tick with which the selection dialog goes to its best row.
constexpr int kAfterOpening = 250;

void Confirm(const QPointer<QWidget>& dialog)
{
    if (dialog && dialog->isVisible()) {
        QWidget* const focus = dialog->focusWidget();
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(focus != nullptr ? focus : dialog.data(), &enter);
    }
}

void Watch()
{
    auto* const timer = new QTimer(qApp);
    timer->callOnTimeout([last = QPointer<QWidget>()]() mutable {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog != last && dialog != nullptr) {
            QTimer::singleShot(kAfterOpening, dialog,
                               [shown = QPointer(dialog)] { Confirm(shown); });
        }
        last = dialog;
    });
    timer->start(10);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
