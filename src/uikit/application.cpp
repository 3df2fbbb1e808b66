#include "uikit/application.h"

#include "platform/message.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "uikit/native/caption_bar.h"
#include "uikit/native/dialog_font.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMessageBox>
#include <QScreen>
#include <QStyleFactory>

#include <algorithm>
#include <utility>

namespace {

constexpr char kTemplateFace[] = "Tahoma";
constexpr double kTemplatePoints = 8;

double g_fontPoints = 0;
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

void ShowMessageBox(const MessageBoxText& message)
{
    QMessageBox box(QApplication::activeModalWidget());
    box.setFont(GetDialogFont());
    box.setIcon(NativeIcon(message.icon));
    box.setWindowTitle(message.caption.empty() ? QApplication::applicationDisplayName()
                                               : ToNative(message.caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToNative(message.text));
    box.addButton("OK", QMessageBox::AcceptRole);
    box.exec();
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

double SystemPoints()
{
    const double points = QApplication::font().pointSizeF();
    return points > 0 ? points : kTemplatePoints;
}

} // namespace

void EnsureApplication()
{
    if (qApp == nullptr) {
        MakeApplication();
    }
    MessageHandler present = SetMessageHandler({});
    SetMessageHandler(present ? std::move(present) : ShowMessageBox);
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

QFont GetDialogFont()
{
    QFont font(kTemplateFace);
    font.setStyleHint(QFont::SansSerif);
    const double wanted = g_fontPoints > 0 ? g_fontPoints : SystemPoints();
    font.setPointSizeF(std::max(wanted, kTemplatePoints));
    return font;
}

QSize GetDialogBaseUnits(const QFont& font)
{
    const QFontMetrics metrics(font);
    const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const int width = (metrics.horizontalAdvance(letters) / 26 + 1) / 2;
    return {width, metrics.height()};
}

double GetDialogScale()
{
    QFont standard = GetDialogFont();
    const int actual = QFontMetrics(standard).height();
    standard.setPixelSize(11);
    return double(actual) / QFontMetrics(standard).height();
}

void SetDialogFontSize(double points)
{
    g_fontPoints = points;
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
