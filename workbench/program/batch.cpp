#include "workbench/program/batch.h"

#include "platform/encoding.h"
#include "platform/file.h"
#include "platform/file_fault.h"
#include "platform/path.h"
#include "platform/whole_file.h"
#include "workbench/building/building_json.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/plan/sizing.h"
#include "workbench/program/arguments.h"
#include "workbench/program/asked_building.h"
#include "workbench/program/console.h"
#include "workbench/program/host_folders.h"
#include "workbench/report/plan_files.h"
#include "workbench/schedule/schedule_csv.h"
#include "workbench/schedule/schedule_json.h"
#include "workbench/schedule/schedule_text.h"
#include "workbench/schedule/schedule_xlsx.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

constexpr wchar_t kCsvName[] = L"corpi-scaldanti.csv";
constexpr wchar_t kXlsxName[] = L"corpi-scaldanti.xlsx";
constexpr wchar_t kJsonName[] = L"corpi-scaldanti.json";

/// What a run comes to.
struct CResult
{
    CSchedule schedule;
    /// The building with its radiators.
    CBuilding building;
};

/// A building that has no radiators yet is told with what was tried where none was found; one that
/// has some with what stands in it after they were sized, and with what
/// kept rooms from being sized.
CResult Calculate(const CBuilding& building)
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

void WriteFiles(const CResult& result, const CDrawingBlocks& blocks, const CArguments& arguments)
{
    const CString& folder = arguments.strOutput;
    std::error_code error;
    std::filesystem::create_directories(ResolvePath(folder), error);
    if (error) {
        throw CFileException::FromErrno(error.value(), folder);
    }
    const CsvForm form = arguments.bCsvPlain ? CsvForm::plain : CsvForm::spreadsheet;
    WriteWholeFile(JoinPath(folder, kCsvName),
                   Utf8FromWide(FormatScheduleCsv(result.schedule, form)));
    WriteWholeFile(JoinPath(folder, kXlsxName), FormatScheduleXlsx(result.schedule));
    WriteWholeFile(JoinPath(folder, kJsonName), FormatScheduleJson(result.schedule));
    WritePlanFiles(folder, result.building, blocks);
    if (!arguments.strSave.empty()) {
        WriteBuilding(arguments.strSave, result.building);
    }
}

/// Plans are drawn without the blocks that cannot be read.
CDrawingBlocks ReadBlocks(ExitCode& code, std::ostream& err)
{
    CDrawingBlocks blocks = ReadDrawingBlocks();
    for (const CFileFault& error : blocks.errors) {
        code = Report(err, FormatFileFault(error), ExitCode::badCatalogue);
    }
    return blocks;
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
ExitCode Deliver(const CResult& result, const CArguments& arguments, std::ostream& out,
                 std::ostream& err)
{
    ExitCode code = ReportUnread(result.schedule, err);
    CString text = FormatScheduleText(result.schedule, arguments.bValves);
    try {
        WriteFiles(result, ReadBlocks(code, err), arguments);
        text += L"Scritti " + CString(kCsvName) + L", " + kXlsxName + L", " + kJsonName + L", " +
                kPdfName + L" e " + kDxfName + L" in " + arguments.strOutput + L"\n";
    } catch (const CFileException& error) {
        code = Report(err, L"risultati non scrivibili: " + error.GetErrorMessage(),
                      ExitCode::outputNotWritable);
    }
    return Show(text, code, out, err);
}

} // namespace

ExitCode RunBatch(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    RequireCatalogueFolder();
    const CBuilding building = ReadAskedBuilding(arguments, L"--room");
    if (HasValves(building)) {
        RequireValveFolder();
    }
    return Deliver(Calculate(building), arguments, out, err);
}

} // namespace workbench
