#include "platform/encoding.h"
#include "platform/environment.h"
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
    std::vector<CString> arguments = InstalledDefaults();
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(WideFromUtf8(argv[i]));
    }
    return static_cast<int>(
        RunCommandLine(GetWorkbench(), arguments, HasScreen(), std::cout, std::cerr));
}
