#pragma once

#include "frame/conn_values.h"
#include "frame/ventil_kv.h"
#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// What the connection dialog works on and gives back.
struct CConnectionChoice
{
    ConnValues anschluss;
    VDI3805_VENTIL_KV ventilVorlauf;
    VDI3805_VENTIL_KV ventilRuecklauf;
    bool bVentile = true;
    bool bTyp = true;
    bool bFanCoil = false;
};

/// The choice in plain words, a line each; lines end in a line feed.
CString FormatConnectionChoice(const CConnectionChoice& choice);

/// Opens the module's connection dialog beside a plan with three radiators that show their
/// connections live, and prints on `out` what the user confirmed; `cancelled` if he did not. Needs
/// a display.
ExitCode RunConnectionDialog(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
