#pragma once

#include "platform/text.h"

#include <iosfwd>
#include <vector>

namespace reference_host {

/// How radsel_check ends. The numbers are those of the workbench, save that 1 is what it is for.
enum class CheckExit
{
    clean = 0,
    findings = 1,
    wrongArguments = 2,
    unreadable = 4,
    outputNotWritable = 5,
};

/// The help text of the program.
CString GetCheckHelp();

/// Runs the program with what stands behind its name on the command line. Findings and the count of
/// what was looked at go to `out`, what cannot be read and wrong arguments to `err`; both in UTF-8.
CheckExit RunCheck(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err);

} // namespace reference_host
