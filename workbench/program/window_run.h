#pragma once

#include "workbench/program/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Opens the workbench's window on the building of the arguments and returns when the user closes
/// it. Raises CArgumentException if there is no folder of catalogues and CContentException for a
/// building that cannot be read. Needs a display.
ExitCode RunWindow(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
