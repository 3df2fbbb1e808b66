#pragma once

#include "platform/text.h"
#include "workbench/program/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Tells every command and option, and the exit codes.
CString GetHelpText();

/// Shows the help text on `out`.
ExitCode ShowHelp(const CArguments& arguments, std::ostream& out, std::ostream& err);

/// Shows the program's name and version on `out`.
ExitCode ShowVersion(const CArguments& arguments, std::ostream& out, std::ostream& err);

} // namespace workbench
