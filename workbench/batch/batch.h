#pragma once

#include "workbench/batch/exit_code.h"
#include "workbench/batch/result_folder.h"
#include "workbench/schedule/schedule.h"

#include <functional>
#include <iosfwd>

namespace workbench {

struct CArguments;

/// What a run comes to.
struct CBatchResult
{
    CSchedule schedule;
    /// The building with its radiators.
    CBuilding building;
};

/// Takes a fault of something that could not be read, which is left out of the files.
using UnreadTeller = std::function<void(const CString& fault)>;

/// Writes the files of a run to the folder of the arguments. Raises CFileException.
using BatchFiles = CResultFolder (*)(const CBatchResult& result, const CArguments& arguments,
                                     const UnreadTeller& tell);

/// The run without windows: chooses a radiator for every room, fetches its valves, writes the files
/// and shows the schedule on `out`; errors go to `err`. Raises CArgumentException for what cannot
/// be calculated as asked and CContentException for a building that cannot be read. The lines of
/// valve files that were read stay as they were.
ExitCode RunBatch(const CArguments& arguments, BatchFiles writeFiles, std::ostream& out,
                  std::ostream& err);

/// The schedule as CSV and as JSON, each for itself.
void WriteCsv(CResultFolder& folder, const CBatchResult& result, const CArguments& arguments);
void WriteJson(CResultFolder& folder, const CBatchResult& result);

} // namespace workbench
