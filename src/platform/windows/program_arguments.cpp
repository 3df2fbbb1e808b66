#include "platform/program_arguments.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

std::vector<CString> ProgramArguments(int /*count*/, const char* const* /*values*/)
{
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<CString> arguments;
    for (int i = 1; words != nullptr && i < count; ++i) {
        arguments.emplace_back(words[i]);
    }
    LocalFree(words);
    return arguments;
}

void WriteOutputUnchanged()
{
    SetConsoleOutputCP(CP_UTF8);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}
