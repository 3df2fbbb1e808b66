#include "workbench/program/dialog_run.h"

#include "frame/entry_points.h"
#include "platform/format.h"
#include "reference_host/base/qt_application.h"
#include "workbench/program/batch.h"
#include "workbench/schedule/text_columns.h"

#include <QtGlobal>

#include <cstdlib>
#include <iostream>

namespace workbench {

namespace {

/// A number that no catalogue has: the module opens on a maker only if a number comes with it.
constexpr wchar_t kNoNumber[] = L"-";

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

std::optional<VDI3805_VENTIL_KV> ChooseValve(const CString& maker, const CString& number)
{
    StartWindows();
    VDI3805_VENTIL_KV ventil;
    if (!ShowVentVDI3805Dlg(number.empty() ? kNoNumber : number, maker, ventil)) {
        return std::nullopt;
    }
    return ventil;
}

CString FormatChosenValve(const VDI3805_VENTIL_KV& ventil)
{
    if (ventil.Bezeichnung.empty()) {
        return L"Nessuna valvola scelta.\n";
    }
    constexpr int kNameWidth = 100;
    CTextColumns lines({{L"Valvola scelta"}, {.strHeading = L"", .nMaxWidth = kNameWidth}});
    lines.AddRow({L"Produttore", ventil.Hersteller});
    lines.AddRow({L"NumeroTGA", ventil.VentilNr});
    // A chosen valve names its main group here and its group there.
    lines.AddRow({L"Gruppo principale", ventil.Gruppe});
    lines.AddRow({L"Gruppo", ventil.Hauptgruppe});
    lines.AddRow({L"Denominazione", ventil.Bezeichnung});
    lines.AddRow({L"DN", FormatFixed(ventil.DN, 0)});
    lines.AddRow({L"Regolabile", ventil.Einstellbar != 0 ? L"sì" : L"no"});
    return lines.Format();
}

} // namespace workbench
