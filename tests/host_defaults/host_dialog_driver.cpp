#include "tests/host_defaults/host_dialog_driver.h"

#include "host_defaults/dialogs/qt_application.h"

#include <QApplication>
#include <QTest>
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

void PressKey(QWidget& dialog, Qt::Key key)
{
    QWidget* const focus = dialog.focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &dialog, key);
}

void TypeText(QWidget& dialog, const QString& text)
{
    QTest::keyClicks(dialog.focusWidget(), text);
}
