#pragma once

#include "platform/text.h"

#include <vector>

/// What the user has written behind the program's name. Pass what main() was given: some systems
/// hand it over there, others know better, because main() gets it in a small alphabet.
std::vector<CString> ProgramArguments(int count, const char* const* values);

/// Lets what goes to standard output and error leave as it is written, in UTF-8 and with "\n" as
/// the end of a line, until the program ends. For the first lines of main().
void WriteOutputUnchanged();
