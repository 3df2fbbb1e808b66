#pragma once

#include "platform/text.h"
#include "workbench/batch/commands.h"

#include <iosfwd>
#include <vector>

namespace workbench {

/// A command line that was understood.
struct CCommandLine
{
    const CCommand& command;
    CArguments arguments;
};

/// Reads the arguments behind a program's name by the table of commands. Where no command is
/// typed it is the window if there is a screen and the batch run if there is none. An option given
/// twice counts as given last, so that a starter can put its defaults in front; a value that begins
/// with two dashes is given as --option=value. Raises CArgumentException for two commands, for an
/// argument that nobody knows, for an option that the command does not accept and for a value that
/// is missing or makes no sense.
CCommandLine ParseCommandLine(const CProgram& program, const std::vector<CString>& arguments,
                              bool hasScreen);

/// The whole of a program behind its main function: reads the arguments, puts the options that the
/// command uses into force for the process, and runs it. Errors that end it go to `err`.
ExitCode RunCommandLine(const CProgram& program, const std::vector<CString>& arguments,
                        bool hasScreen, std::ostream& out, std::ostream& err);

} // namespace workbench
