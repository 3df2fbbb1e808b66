#include "platform/program_arguments.h"

#include "platform/encoding.h"

std::vector<CString> ProgramArguments(int count, const char* const* values)
{
    std::vector<CString> arguments;
    for (int i = 1; i < count; ++i) {
        arguments.push_back(WideFromUtf8(values[i]));
    }
    return arguments;
}

void WriteOutputUnchanged() {}
