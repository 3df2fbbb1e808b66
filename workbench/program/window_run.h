#pragma once

#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Opens the workbench's window on the building of the arguments, or on work that a crash left
/// behind, and returns when the user closes it. A building that cannot be read is told in the
/// window. Raises CArgumentException if there is no folder of catalogues. Needs a display.
ExitCode RunWindow(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
