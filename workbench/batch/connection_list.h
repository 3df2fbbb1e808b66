#pragma once

#include "platform/text.h"
#include "workbench/batch/exit_code.h"

#include <iosfwd>

namespace workbench {

struct CArguments;

/// Prints a short list of connection types ("Vent.txt") in plain words on `out`: each type with the
/// places and directions of its two points. What the selection dialog would leave out, or would
/// show under another name than meant, is told on `err` with its line, and the result is then
/// badCatalogue, as it is for a file that cannot be read. An empty path stands for the file in the
/// data root.
ExitCode ListConnections(const CString& path, std::ostream& out, std::ostream& err);

/// Lists the types of the file that the arguments name.
ExitCode RunConnectionList(const CArguments& arguments, std::ostream& out, std::ostream& err);

/// The place and direction of a connection point text in plain words.
CString DescribeConnectionPoint(const CString& text);

} // namespace workbench
