#pragma once

#include "platform/text.h"
#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

/// The name of the program that runs, for this process.
void SetProgramName(const CString& name);
const CString& GetProgramName();

/// Writes an error message, led by the program's name and ended by a line feed, and gives `code`.
/// This and Show() write UTF-8 whatever the locale.
ExitCode Report(std::ostream& err, const CString& message, ExitCode code);

/// Writes a text as it is and gives `code`; an output that cannot be written to is reported on
/// `err` and gives outputNotWritable, whatever came before.
ExitCode Show(const CString& text, ExitCode code, std::ostream& out, std::ostream& err);

} // namespace workbench
