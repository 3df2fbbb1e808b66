#include "platform/program_arguments.h"
#include "reference_host/check/check_run.h"

#include <iostream>

int main(int argc, char* argv[])
{
    WriteOutputUnchanged();
    return static_cast<int>(
        reference_host::RunCheck(ProgramArguments(argc, argv), std::cout, std::cerr));
}
