#pragma once

#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Opens the module's valve dialog on the valve of the arguments, on their maker alone or, if they
/// name none, on the first maker, and prints the valve that was chosen on `out`, or that none was;
/// `cancelled` if the user did not confirm. Raises CArgumentException if there is no folder of
/// valves. Needs a display.
ExitCode RunValveDialog(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
