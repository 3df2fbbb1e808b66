#include "workbench/program/connection_run.h"

#include "frame/entry_points.h"
#include "platform/encoding.h"
#include "platform/file_fault.h"
#include "platform/format.h"
#include "workbench/batch/connection_list.h"
#include "workbench/batch/console.h"
#include "workbench/building/user_text.h"
#include "workbench/drawing/beside_window.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/drawing/plan_view.h"
#include "workbench/drawing/sample_plan.h"
#include "workbench/drawing/scene_drawer.h"
#include "workbench/plan/module_call.h"
#include "workbench/program/dialog_run.h"
#include "workbench/schedule/text_columns.h"

#include <ostream>

namespace workbench {

namespace {

/// Layer of the plan's radiators, in the colour that CAD programs call red.
const CDxfLayer kLayer = {L"RISCALDAMENTO", 1};

constexpr QSize kPlanSize(520, 480);

/// The blocks of radiators; without their drawing a plan shows plain rectangles.
CDxfDrawing RadiatorBlocks(std::ostream& err)
{
    const CDrawingBlocks blocks = ReadDrawingBlocks();
    for (const CFileFault& error : blocks.errors) {
        err << Utf8FromWide(FormatFileFault(error)) << '\n';
    }
    return blocks.heizkoerper;
}

bool Edit(CConnectionChoice& choice, std::ostream& err)
{
    CSamplePlan plan;
    FillSampleRoom(plan, RadiatorBlocks(err));
    CPlanView view(&plan.GetScene());
    view.setWindowTitle("Pianta");
    view.resize(kPlanSize);
    view.FitToContent();
    view.show();
    const CBesideWindow beside(view);
    CSceneDrawer drawer(plan.GetScene(), {kLayer});
    choice.anschluss.AnschlussAN = AttributeOf(*plan.GetList(), L"H_VL_PUNKT");
    choice.anschluss.AnschlussRI = AttributeOf(*plan.GetList(), L"H_RL_PUNKT");
    bool groupsSelectable = true;
    return CallModule(L"Attacchi e valvole", [&] {
        return ShowVentDlg(choice.anschluss, choice.ventilVorlauf, choice.ventilRuecklauf,
                           groupsSelectable, choice.bVentile, choice.bTyp, choice.bFanCoil,
                           plan.GetList(), &drawer);
    });
}

CString Meters(double value)
{
    return FormatDecimals(value, 3) + L" m";
}

CString YesNo(bool value)
{
    return value ? L"sì" : L"no";
}

CString Crossing(const ConnValues& values)
{
    switch (values.KreuzTyp) {
    case 1:
        return L"mandata sopra ritorno, " + Meters(values.KreuzAbstand);
    case 2:
        return L"ritorno sopra mandata, " + Meters(values.KreuzAbstand);
    default:
        return L"nessuno";
    }
}

CString Valve(const VDI3805_VENTIL_KV& valve)
{
    const CString name = valve.Bezeichnung.empty() ? CString(L"nessuna")
                                                   : valve.Hersteller + L" " + valve.Bezeichnung;
    return name + L", DN " + FormatFixed(valve.DN, 0);
}

} // namespace

CString FormatConnectionChoice(const CConnectionChoice& choice)
{
    const ConnValues& values = choice.anschluss;
    constexpr int kValueWidth = 120;
    CTextColumns lines({{L"Attacco"}, {.strHeading = L"", .nMaxWidth = kValueWidth}});
    lines.AddRow({L"Tipo", values.Name.empty() ? CString(L"(senza nome)") : values.Name});
    lines.AddRow({L"Mandata", DescribeConnectionPoint(values.AnschlussAN)});
    lines.AddRow({L"Ritorno", DescribeConnectionPoint(values.AnschlussRI)});
    lines.AddRow({L"Distanza laterale, mandata", Meters(values.SeitAbstandAN)});
    lines.AddRow({L"Distanza laterale, ritorno", Meters(values.SeitAbstandRI)});
    lines.AddRow({L"Incrocio", Crossing(values)});
    lines.AddRow({L"Distanza dalla parete",
                  values.WandAbstand != 0.0 ? Meters(values.WandAbstand) : CString(L"non usata")});
    lines.AddRow({L"Valvola di mandata", Valve(choice.ventilVorlauf)});
    lines.AddRow({L"Valvola di ritorno", Valve(choice.ventilRuecklauf)});
    lines.AddRow({L"Grafico di mandata", values.GrafikAN.empty() ? L"nessuno" : values.GrafikAN});
    lines.AddRow({L"Grafico di ritorno", values.GrafikRI.empty() ? L"nessuno" : values.GrafikRI});
    lines.AddRow({L"Tipo attacco attivo", YesNo(choice.bTyp)});
    lines.AddRow({L"Valvole attive", YesNo(choice.bVentile)});
    lines.AddRow({L"FanCoil", YesNo(choice.bFanCoil)});
    return lines.Format();
}

ExitCode RunConnectionDialog(const CArguments& /*arguments*/, std::ostream& out, std::ostream& err)
{
    StartWindows();
    CConnectionChoice choice;
    if (!Edit(choice, err)) {
        return Report(err, L"finestra annullata", ExitCode::cancelled);
    }
    return Show(FormatConnectionChoice(choice), ExitCode::ok, out, err);
}

} // namespace workbench
