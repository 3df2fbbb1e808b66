#include "workbench/batch/batch_program.h"

#include "workbench/batch/batch.h"
#include "workbench/batch/connection_list.h"
#include "workbench/batch/console.h"
#include "workbench/batch/help_run.h"

namespace workbench {

namespace {

CResultFolder WriteTables(const CBatchResult& result, const CArguments& arguments,
                          const UnreadTeller& /*tell*/)
{
    CResultFolder folder(arguments.strOutput);
    WriteCsv(folder, result, arguments);
    WriteJson(folder, result);
    return folder;
}

ExitCode RunTables(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    return RunBatch(arguments, WriteTables, out, err);
}

ExitCode ShowHelp(const CArguments& /*arguments*/, std::ostream& out, std::ostream& err)
{
    return Show(GetHelpText(false), ExitCode::ok, out, err);
}

} // namespace

const CProgram& GetBatchProgram()
{
    static constexpr CCommandRun runs[] = {
        {CommandId::batch, RunTables},
        {CommandId::listConnections, RunConnectionList},
        {CommandId::help, ShowHelp},
        {CommandId::version, ShowVersion},
    };
    static constexpr CProgram program{L"radsel_batch", runs};
    return program;
}

} // namespace workbench
