#pragma once

#include "frame/ventil_kv.h"
#include "platform/text.h"

#include <optional>

namespace workbench {

/// Makes what dialogs need. A process without a screen ends here, with a message on standard error
/// and ExitCode::noScreen.
void StartWindows();

/// Opens the module's valve dialog on a valve, on a maker alone or, with both texts empty, on the
/// first maker. The record that the user confirmed; nothing if he cancelled. StartWindows()
/// is called first.
std::optional<VDI3805_VENTIL_KV> ChooseValve(const CString& maker, const CString& number);

/// The identity and nominal data of a valve as chosen in the dialog, a line each; lines end in a
/// line feed. A record without a valve is told in words.
CString FormatChosenValve(const VDI3805_VENTIL_KV& ventil);

} // namespace workbench
