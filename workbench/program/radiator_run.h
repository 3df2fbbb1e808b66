#pragma once

#include "platform/text.h"
#include "workbench/program/batch.h"

#include <iosfwd>
#include <vector>

namespace workbench {

/// The option that RunRadiatorDialog() serves; the name of a room may stand behind it.
inline constexpr wchar_t kRadiatorDialogOption[] = L"--radiator-dialog";

/// Opens the radiator selection for a room of the building, the first one if none is named, as a
/// CAD does, and prints the radiator that was chosen on `out`. Errors go to `err`. `arguments` are
/// those behind the program's name. `cancelled` if no radiator was chosen. Needs a display.
ExitCode RunRadiatorDialog(const std::vector<CString>& arguments, std::ostream& out,
                           std::ostream& err);

} // namespace workbench
