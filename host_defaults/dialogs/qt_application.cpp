#include "host_defaults/dialogs/qt_application.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace host_defaults {

namespace {

QtMessageHandler g_handlerBefore = nullptr;

/// Without a desktop there is no folder for its sessions, which the toolkit asks for and does well
/// without.
void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set")) {
        g_handlerBefore(type, context, message);
    }
}

/// Outlives main(): the toolkit keeps referring to it, and tearing its window system down among the
/// destructors of a foreign program is a known source of crashes.
QApplication& MakeApplication()
{
    static int count = 1;
    static char name[] = "radsel";
    static char* arguments[] = {name, nullptr};
    g_handlerBefore = qInstallMessageHandler(PassOn);
    auto* const application = new QApplication(count, arguments);
    qInstallMessageHandler(g_handlerBefore);
    return *application;
}

/// What the toolkit says itself, in file dialogs and menus of fields, is in the language of all
/// other texts, as far as its translations are installed.
void SpeakItalian(QApplication& application)
{
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* const translator = new QTranslator(&application);
    if (translator->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(translator);
    }
}

} // namespace

bool EnsureWindows()
{
    if (QCoreApplication::instance() == nullptr) {
        SpeakItalian(MakeApplication());
    }
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace host_defaults
