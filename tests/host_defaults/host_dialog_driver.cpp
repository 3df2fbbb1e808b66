#include "tests/host_defaults/host_dialog_driver.h"

#include "host_defaults/dialogs/qt_application.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

#include <utility>

using namespace host_defaults;

void OnNextDialog(std::function<void(QWidget&)> steps)
{
    EnsureWindows();
    QTimer::singleShot(0, [steps = std::move(steps)] {
        QWidget* const dialog = QApplication::activeModalWidget();
        QApplication::setActiveWindow(dialog);
        steps(*dialog);
    });
}

void PressKey(QWidget& dialog, Qt::Key key, const QString& text)
{
    QWidget* const focus = dialog.focusWidget();
    QWidget* const target = focus != nullptr ? focus : &dialog;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &release);
}

void TypeText(QWidget& dialog, const QString& text)
{
    for (const QChar letter : text) {
        PressKey(dialog, Qt::Key_unknown, letter);
    }
}
