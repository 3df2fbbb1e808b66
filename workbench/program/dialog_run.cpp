#include "workbench/program/dialog_run.h"

#include "host_defaults/dialogs/dialog_parts.h"
#include "host_defaults/dialogs/qt_application.h"
#include "reference_host/catalog/help_pages.h"
#include "workbench/batch/exit_code.h"
#include "workbench/toolkit/qt_text.h"

#include <QMessageBox>

#include <cstdlib>
#include <iostream>

namespace workbench {

namespace {

QtMessageHandler g_messageHandlerBefore = nullptr;

/// The toolkit can tell that there is no screen only by aborting the process.
void OnStartMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtFatalMsg) {
        g_messageHandlerBefore(type, context, message);
        return;
    }
    std::cerr << "radsel_workbench: nessuno schermo per mostrare la finestra (DISPLAY o "
                 "WAYLAND_DISPLAY)\n";
    std::_Exit(static_cast<int>(ExitCode::noScreen));
}

void TellAboutHelp(const CString& text)
{
    QMessageBox box(QMessageBox::Warning, "Guida", {}, QMessageBox::Ok,
                    host_defaults::ParentForDialog());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    box.exec();
}

} // namespace

void StartWindows()
{
    g_messageHandlerBefore = qInstallMessageHandler(OnStartMessage);
    host_defaults::EnsureWindows();
    qInstallMessageHandler(g_messageHandlerBefore);
    reference_host::SetHelpTeller(TellAboutHelp);
}

} // namespace workbench
