#include "workbench/batch/batch.h"

#include "platform/encoding.h"
#include "platform/exception.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/asked_building.h"
#include "workbench/batch/console.h"
#include "workbench/batch/host_folders.h"
#include "workbench/building/building_json.h"
#include "workbench/plan/sizing.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_json.h"
#include "workbench/schedule/schedule_text.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace workbench {

namespace {

/// A building that has no radiators yet is told with what was tried where none was found; one that
/// has some with what stands in it after they were sized, and with what
/// kept rooms from being sized.
CBatchResult Calculate(const CBuilding& building)
{
    const std::vector<CRoomRef> rooms = AllRooms(building);
    CSizingResult sized = SizeRooms(building, rooms, {});
    const bool isPlanned = std::ranges::any_of(
        rooms, [&](const CRoomRef& room) { return !RoomOf(building, room).heizkoerper.empty(); });
    if (isPlanned) {
        std::erase_if(sized.faults, [](const CSizingFault& fault) {
            return fault.outcome.status != RoomStatus::badCatalogue;
        });
    }
    CSchedule schedule = SchedulePlan(sized.building, sized.faults);
    return {std::move(schedule), std::move(sized.building)};
}

/// What could not be read stands in the schedule, and for who reads only faults here, too.
ExitCode ReportUnread(const CSchedule& schedule, std::ostream& err)
{
    ExitCode code = ExitCode::ok;
    for (const CString& reason : schedule.GetUnread()) {
        code = Report(err, reason, ExitCode::badCatalogue);
    }
    return code;
}

/// The files come first: a reader of `out` that goes away ends the process.
ExitCode Deliver(const CBatchResult& result, const CArguments& arguments, BatchFiles writeFiles,
                 std::ostream& out, std::ostream& err)
{
    ExitCode code = ReportUnread(result.schedule, err);
    const auto tell = [&](const CString& fault) {
        code = Report(err, fault, ExitCode::badCatalogue);
    };
    CString text = FormatScheduleText(result.schedule, arguments.bValves);
    try {
        const CResultFolder folder = writeFiles(result, arguments, tell);
        if (!arguments.strSave.empty()) {
            WriteBuilding(arguments.strSave, result.building);
        }
        text += folder.Describe();
    } catch (const CFileException& error) {
        code = Report(err, L"risultati non scrivibili: " + error.GetErrorMessage(),
                      ExitCode::outputNotWritable);
    }
    return Show(text, code, out, err);
}

} // namespace

ExitCode RunBatch(const CArguments& arguments, BatchFiles writeFiles, std::ostream& out,
                  std::ostream& err)
{
    RequireCatalogueFolder();
    const CBuilding building = ReadAskedBuilding(arguments, L"--room");
    if (HasValves(building)) {
        RequireValveFolder();
    }
    return Deliver(Calculate(building), arguments, writeFiles, out, err);
}

void WriteCsv(CResultFolder& folder, const CBatchResult& result, const CArguments& arguments)
{
    const CsvForm form = arguments.bCsvPlain ? CsvForm::plain : CsvForm::spreadsheet;
    folder.Write(L"corpi-scaldanti.csv", Utf8FromWide(FormatScheduleCsv(result.schedule, form)));
}

void WriteJson(CResultFolder& folder, const CBatchResult& result)
{
    folder.Write(L"corpi-scaldanti.json", FormatScheduleJson(result.schedule));
}

} // namespace workbench
