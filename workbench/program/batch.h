#pragma once

#include "workbench/program/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// The run without windows: chooses a radiator for every room, fetches its valves, writes the
/// schedule to the output folder as CSV, workbook and JSON and shows it on `out`; errors go to
/// `err`. Raises CArgumentException for what cannot be calculated as asked and CContentException
/// for a building that cannot be read. The lines of valve files that were read stay as they were.
ExitCode RunBatch(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
