#include "platform/program_arguments.h"
#include "workbench/batch/batch_program.h"
#include "workbench/batch/command_line.h"
#include "workbench/batch/console.h"
#include "workbench/batch/host_folders.h"

#include "host/host_identity.h"

#include <iostream>

using namespace workbench;

// The functions of the host that would show windows are in the program itself.
RADSEL_HOST_IDENTITY("radsel reference host")

int main(int argc, char* argv[])
{
    WriteOutputUnchanged();
    std::vector<CString> arguments = InstalledDefaults();
    for (const CString& argument : ProgramArguments(argc, argv)) {
        arguments.push_back(argument);
    }
    return static_cast<int>(
        RunCommandLine(GetBatchProgram(), arguments, false, std::cout, std::cerr));
}
