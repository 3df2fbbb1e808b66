#pragma once

#include "platform/text.h"

#include <iosfwd>
#include <vector>

/// The option that RunRadiatorDialog() serves; the name of a room may stand behind it.
inline constexpr wchar_t kRadiatorDialogOption[] = L"--radiator-dialog";

/// Opens the radiator selection for a room of the building, the first one if none is named, as a
/// CAD does, and prints the radiator that was chosen on `out`. Errors go to `err`. `arguments` are
/// those behind the program's name. 0 if a radiator was chosen, ExitCode::cancelled if not, 1 on an
/// error. Needs a display.
int RunRadiatorDialog(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err);
