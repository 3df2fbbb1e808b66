#pragma once

#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Opens the dialog that picks a product from the catalogue tree, as a CAD does for the system's
/// temperatures, an output of 1000 W and a room of 20 °C, and prints what was picked on `out`, or
/// that nothing was; `cancelled` if the user did not confirm. The result is badCatalogue if the
/// catalogue folder holds no manufacturer. Raises CArgumentException for a system whose return is
/// no warmer than the room. Needs a display.
ExitCode RunTreeDialog(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
