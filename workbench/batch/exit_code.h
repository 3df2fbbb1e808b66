#pragma once

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

} // namespace workbench
