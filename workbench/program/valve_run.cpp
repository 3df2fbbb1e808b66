#include "workbench/program/valve_run.h"

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "platform/format.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/console.h"
#include "workbench/batch/host_folders.h"
#include "workbench/plan/module_call.h"
#include "workbench/program/dialog_run.h"
#include "workbench/schedule/text_columns.h"

namespace workbench {

namespace {

/// A number that no catalogue has: the module opens on a maker only if a number comes with it.
constexpr wchar_t kNoNumber[] = L"-";

/// The identity and nominal data of the valve, a line each.
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

} // namespace

ExitCode RunValveDialog(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    RequireValveFolder();
    StartWindows();
    const CString& number = arguments.strValveNumber;
    VDI3805_VENTIL_KV ventil;
    const bool confirmed = CallModule(L"Scelta della valvola", [&] {
        return ShowVentVDI3805Dlg(number.empty() ? kNoNumber : number, arguments.strMaker, ventil);
    });
    if (!confirmed) {
        return Report(err, L"finestra annullata", ExitCode::cancelled);
    }
    return Show(FormatChosenValve(ventil), ExitCode::ok, out, err);
}

} // namespace workbench
