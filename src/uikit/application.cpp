#include "uikit/application.h"

#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "uikit/native/caption_bar.h"
#include "uikit/native/owner.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QStyleFactory>

#include <utility>

namespace {

DialogObserver g_observer;

QMessageBox::Icon NativeIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::information:
        return QMessageBox::Information;
    case MessageIcon::warning:
        return QMessageBox::Warning;
    case MessageIcon::stop:
        return QMessageBox::Critical;
    case MessageIcon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

/// The application object of a host that has none. It lives to the end of the process, as windows
/// of other modules may by then depend on it.
void MakeApplication()
{
    static int count = 1;
    static char name[] = "radsel";
    static char* arguments[] = {name, nullptr};
    static const auto* const application = new QApplication(count, arguments);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    static_cast<void>(application);
}

bool HasWindows()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

bool EnsureApplication()
{
    if (QCoreApplication::instance() == nullptr) {
        MakeApplication();
    }
    return HasWindows();
}

void ShowMessageBox(const MessageBoxText& message)
{
    if (!HasWindows()) {
        WriteMessage(message);
        return;
    }
    QMessageBox box(QApplication::activeModalWidget());
    box.setIcon(NativeIcon(message.icon));
    box.setWindowTitle(message.caption.empty() ? QApplication::applicationDisplayName()
                                               : ToNative(message.caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToNative(message.text));
    box.addButton("OK", QMessageBox::AcceptRole);
    PutAboveOwner(box);
    box.exec();
}

int GetPrimaryScreenHeight()
{
    return QGuiApplication::primaryScreen()->geometry().height();
}

DialogFont GetMessageFont()
{
    constexpr double kPointsPerInch = 72;
    const QFont font = QApplication::font("QMessageBox");
    const double points = font.pointSizeF();
    const double inch = QGuiApplication::primaryScreen()->logicalDotsPerInchY();
    return {FromNative(font.family()),
            points > 0 ? points : font.pixelSize() * kPointsPerInch / inch};
}

CSize GetVirtualScreenSize()
{
    const QRect all = QGuiApplication::primaryScreen()->virtualGeometry();
    return {all.width(), all.height()};
}

int GetCaptionButtonWidth()
{
    return CCaptionBar::ButtonWidth();
}

CWaitCursor::CWaitCursor()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

CWaitCursor::~CWaitCursor()
{
    QApplication::restoreOverrideCursor();
}

DialogObserver SetDialogObserver(DialogObserver observer)
{
    return std::exchange(g_observer, std::move(observer));
}

void TellDialogObserver(CDialog& dialog)
{
    if (g_observer) {
        const DialogObserver observer = g_observer;
        observer(dialog);
    }
}
