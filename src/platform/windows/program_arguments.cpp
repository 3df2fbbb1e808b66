#include "platform/program_arguments.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace {

/// The console's, which goes on with it when the program ends; 0 without a console.
UINT g_formerCodePage = 0;

void RestoreCodePage()
{
    // What was written reaches the console as it was meant to.
    std::cout.flush();
    std::cerr.flush();
    std::fflush(stdout);
    SetConsoleOutputCP(g_formerCodePage);
}

} // namespace

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
    g_formerCodePage = GetConsoleOutputCP();
    if (g_formerCodePage != 0 && SetConsoleOutputCP(CP_UTF8) != 0) {
        std::atexit(RestoreCodePage);
    }
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}
