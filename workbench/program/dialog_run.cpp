#include "workbench/program/dialog_run.h"

#include "reference_host/base/qt_application.h"
#include "workbench/program/exit_code.h"

#include <QtGlobal>

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

} // namespace

void StartWindows()
{
    g_messageHandlerBefore = qInstallMessageHandler(OnStartMessage);
    reference_host::EnsureWindows();
    qInstallMessageHandler(g_messageHandlerBefore);
}

} // namespace workbench
