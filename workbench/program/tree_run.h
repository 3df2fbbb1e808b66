#pragma once

#include "platform/text.h"
#include "workbench/program/batch.h"

#include <iosfwd>
#include <vector>

namespace workbench {

/// Opens the dialog that picks a product from the catalogue tree, as a CAD does for the system's
/// temperatures and an output of 1000 W, and prints what was picked on `out`, or that nothing was.
/// Errors go to `err`. `arguments` are those behind the program's name. The result is badCatalogue
/// if the catalogue folder holds no manufacturer. Needs a display.
ExitCode RunTreeDialog(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
