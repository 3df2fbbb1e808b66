#pragma once

#include "workbench/program/batch.h"

namespace workbench {

/// The option that keeps the workbench from opening its window.
inline constexpr wchar_t kBatchOption[] = L"--batch";

/// Opens the workbench's window on the building of the arguments and returns when the user closes
/// it. Errors of the arguments, and a building that cannot be read, go to `err` and end it with
/// their exit code. `arguments` are those behind the program's name. Needs a display.
ExitCode RunWindow(const std::vector<CString>& arguments, std::ostream& err);

} // namespace workbench
