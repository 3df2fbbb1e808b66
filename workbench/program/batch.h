#pragma once

#include "platform/text.h"

#include <iosfwd>
#include <vector>

namespace workbench {

/// How the program ends; the help text lists the same codes.
enum class ExitCode
{
    ok = 0,
    unexpected = 1,
    wrongArguments = 2,
    badBuilding = 3,
    badCatalogue = 4,
    outputNotWritable = 5,
    cancelled = 6,
    noScreen = 7,
};

/// The run without windows: chooses a radiator for every room, fetches its valves, writes the
/// schedule to the output folder as CSV and JSON and shows it on `out`; errors go to `err`. Where
/// the arguments ask for a dialog, it opens that instead and shows what the user chose.
/// `arguments` are those behind the program's name. Both streams get UTF-8 whatever the locale. The
/// catalogue folders of the arguments stay in force for the process, and the lines of valve files
/// that were read stay as they were.
ExitCode RunBatch(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
