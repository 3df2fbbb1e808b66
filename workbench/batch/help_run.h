#pragma once

#include "platform/text.h"
#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Tells every command and option, and the exit codes: those of a program with windows, or those of
/// one without any.
CString GetHelpText(bool hasWindows);

/// Shows the program's name and version on `out`.
ExitCode ShowVersion(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
