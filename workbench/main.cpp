#include "platform/environment.h"
#include "platform/program_arguments.h"
#include "workbench/batch/command_line.h"
#include "workbench/batch/host_folders.h"
#include "workbench/program/workbench_program.h"

#include <iostream>
#include <vector>

using namespace workbench;

namespace {

bool HasScreen()
{
    return GetEnvironment(L"DISPLAY") || GetEnvironment(L"WAYLAND_DISPLAY");
}

} // namespace

int main(int argc, char* argv[])
{
    WriteOutputUnchanged();
    std::vector<CString> arguments = InstalledDefaults();
    for (const CString& argument : ProgramArguments(argc, argv)) {
        arguments.push_back(argument);
    }
    return static_cast<int>(
        RunCommandLine(GetWorkbench(), arguments, HasScreen(), std::cout, std::cerr));
}
