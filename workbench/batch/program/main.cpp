#include "platform/program_arguments.h"
#include "workbench/batch/batch.h"
#include "workbench/batch/command_line.h"
#include "workbench/batch/connection_list.h"
#include "workbench/batch/console.h"
#include "workbench/batch/help_run.h"
#include "workbench/batch/host_folders.h"

#include "host/host_identity.h"

#include <iostream>

using namespace workbench;

// The functions of the host that would show windows are in the program itself.
RADSEL_HOST_IDENTITY("radsel reference host")

namespace {

CResultFolder WriteFiles(const CBatchResult& result, const CArguments& arguments,
                         const UnreadTeller& /*tell*/)
{
    CResultFolder folder(arguments.strOutput);
    WriteCsv(folder, result, arguments);
    WriteJson(folder, result);
    return folder;
}

ExitCode RunTables(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    return RunBatch(arguments, WriteFiles, out, err);
}

ExitCode ShowHelp(const CArguments& /*arguments*/, std::ostream& out, std::ostream& err)
{
    return Show(GetHelpText(false), ExitCode::ok, out, err);
}

constexpr CCommandRun kRuns[] = {
    {CommandId::batch, RunTables},
    {CommandId::listConnections, RunConnectionList},
    {CommandId::help, ShowHelp},
    {CommandId::version, ShowVersion},
};

constexpr CProgram kProgram{L"radsel_batch", kRuns};

} // namespace

int main(int argc, char* argv[])
{
    WriteOutputUnchanged();
    std::vector<CString> arguments = InstalledDefaults();
    for (const CString& argument : ProgramArguments(argc, argv)) {
        arguments.push_back(argument);
    }
    return static_cast<int>(RunCommandLine(kProgram, arguments, false, std::cout, std::cerr));
}
