#pragma once

#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Opens the radiator selection for the arguments' room of the building, the first one if they name
/// none, as a CAD does, and prints the radiator that was chosen on `out`; `cancelled` if none was.
/// Raises CArgumentException for what the batch run would refuse as well, and CContentException for
/// a building that cannot be read. Needs a display.
ExitCode RunRadiatorDialog(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
