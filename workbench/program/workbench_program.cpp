#include "workbench/program/workbench_program.h"

#include "platform/file_fault.h"
#include "workbench/batch/batch.h"
#include "workbench/batch/connection_list.h"
#include "workbench/batch/console.h"
#include "workbench/batch/help_run.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/program/connection_run.h"
#include "workbench/program/radiator_run.h"
#include "workbench/program/tree_run.h"
#include "workbench/program/valve_run.h"
#include "workbench/program/window_run.h"
#include "workbench/report/plan_files.h"
#include "workbench/workbook/schedule_xlsx.h"

namespace workbench {

namespace {

/// Plans are drawn without the blocks that cannot be read.
CDrawingBlocks ReadBlocks(const UnreadTeller& tell)
{
    CDrawingBlocks blocks = ReadDrawingBlocks();
    for (const CFileFault& error : blocks.errors) {
        tell(FormatFileFault(error));
    }
    return blocks;
}

CResultFolder WriteFiles(const CBatchResult& result, const CArguments& arguments,
                         const UnreadTeller& tell)
{
    const CDrawingBlocks blocks = ReadBlocks(tell);
    CResultFolder folder(arguments.strOutput);
    WriteCsv(folder, result, arguments);
    folder.Write(L"corpi-scaldanti.xlsx", FormatScheduleXlsx(result.schedule));
    WriteJson(folder, result);
    WritePlanFiles(folder.GetPath(), result.building, blocks);
    folder.Add(kPdfName);
    folder.Add(kDxfName);
    return folder;
}

ExitCode RunWholeBatch(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    return RunBatch(arguments, WriteFiles, out, err);
}

ExitCode ShowHelp(const CArguments& /*arguments*/, std::ostream& out, std::ostream& err)
{
    return Show(GetHelpText(true), ExitCode::ok, out, err);
}

} // namespace

const CProgram& GetWorkbench()
{
    static constexpr CCommandRun runs[] = {
        {CommandId::window, RunWindow},
        {CommandId::batch, RunWholeBatch},
        {CommandId::radiatorDialog, RunRadiatorDialog},
        {CommandId::treeDialog, RunTreeDialog},
        {CommandId::connectionDialog, RunConnectionDialog},
        {CommandId::valveDialog, RunValveDialog},
        {CommandId::listConnections, RunConnectionList},
        {CommandId::help, ShowHelp},
        {CommandId::version, ShowVersion},
    };
    static constexpr CProgram program{L"radsel_workbench", runs};
    return program;
}

} // namespace workbench
