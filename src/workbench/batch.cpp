#include "workbench/batch.h"

#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/file.h"
#include "platform/path.h"
#include "workbench/arguments.h"
#include "workbench/building_json.h"
#include "workbench/dialog_run.h"
#include "workbench/host_prefs/host_settings.h"
#include "workbench/json_fields.h"
#include "workbench/schedule_csv.h"
#include "workbench/schedule_json.h"
#include "workbench/schedule_text.h"

#include <filesystem>
#include <ostream>
#include <system_error>

namespace {

constexpr wchar_t kCsvName[] = L"corpi-scaldanti.csv";
constexpr wchar_t kJsonName[] = L"corpi-scaldanti.json";

void SetCatalogueFolder(const CArguments& arguments)
{
    if (!arguments.strCatalogues.empty()) {
        OverrideHostSetting(kSettingHKDir, arguments.strCatalogues);
    }
    std::error_code error;
    if (!std::filesystem::is_directory(ResolvePath(GetHKDir(false)), error)) {
        throw CArgumentException(L"la cartella dei cataloghi non esiste: " + GetHKDir(false));
    }
}

void SetValveFolder(const CArguments& arguments, bool needed)
{
    if (!arguments.strValveCatalogues.empty()) {
        OverrideHostSetting(kSettingVEDir, arguments.strValveCatalogues);
    }
    std::error_code error;
    if (needed && !std::filesystem::is_directory(ResolvePath(GetVEDir(false)), error)) {
        throw CArgumentException(L"--valve-catalogues: la cartella delle valvole non esiste: " +
                                 GetVEDir(false));
    }
}

CBuilding LoadBuilding(const CArguments& arguments)
{
    CBuilding building = ReadBuilding(arguments.strBuilding);
    if (!arguments.strRoom.empty() && !KeepRoom(building, arguments.strRoom)) {
        throw CArgumentException(L"--room: l'edificio non ha il locale \"" + arguments.strRoom +
                                 L"\"");
    }
    if (arguments.system) {
        building.system = *arguments.system;
        if (const CRoom* room = FindRoomTooWarm(building)) {
            throw CArgumentException(L"--system: il ritorno non supera la temperatura del locale "
                                     L"\"" +
                                     room->strName + L"\"");
        }
    }
    return building;
}

void WriteWholeFile(const CString& path, const std::string& bytes)
{
    CFile file(path, CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), bytes.size());
    file.Close();
}

void WriteSchedule(const CSchedule& schedule, const CString& folder)
{
    std::error_code error;
    std::filesystem::create_directories(ResolvePath(folder), error);
    if (error) {
        throw CFileException::FromErrno(error.value(), folder);
    }
    WriteWholeFile(JoinPath(folder, kCsvName), Utf8FromWide(FormatScheduleCsv(schedule)));
    WriteWholeFile(JoinPath(folder, kJsonName), FormatScheduleJson(schedule));
}

ExitCode Report(std::ostream& err, const CString& message, ExitCode code)
{
    err << Utf8FromWide(L"radsel_workbench: " + message) << '\n';
    return code;
}

/// Shows a text; a screen that cannot be written to is an error whatever came before.
ExitCode Show(const CString& text, ExitCode code, std::ostream& out, std::ostream& err)
{
    out << Utf8FromWide(text) << std::flush;
    return out ? code
               : Report(err, L"l'uscita standard non è scrivibile", ExitCode::outputNotWritable);
}

/// The files come first: a reader of `out` that goes away ends the process.
ExitCode Deliver(const CSchedule& schedule, const CArguments& arguments, std::ostream& out,
                 std::ostream& err)
{
    ExitCode code = schedule.HasBadCatalogue() ? ExitCode::badCatalogue : ExitCode::ok;
    CString text = FormatScheduleText(schedule, arguments.bValves);
    try {
        WriteSchedule(schedule, arguments.strOutput);
        text += L"Scritti " + CString(kCsvName) + L" e " + kJsonName + L" in " +
                arguments.strOutput + L"\n";
    } catch (const CFileException& error) {
        code = Report(err, L"risultati non scrivibili: " + error.GetErrorMessage(),
                      ExitCode::outputNotWritable);
    }
    return Show(text, code, out, err);
}

ExitCode RunValveDialog(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    SetValveFolder(arguments, true);
    SetWorkplace(arguments);
    const auto ventil = ChooseValve(arguments.strMaker, arguments.strValveNumber);
    return ventil ? Show(FormatChosenValve(*ventil), ExitCode::ok, out, err)
                  : Report(err, L"finestra annullata", ExitCode::cancelled);
}

ExitCode Run(const CArguments& arguments, std::ostream& out, std::ostream& err)
{
    if (arguments.bHelp) {
        return Show(GetHelpText(), ExitCode::ok, out, err);
    }
    if (arguments.bValveDialog) {
        return RunValveDialog(arguments, out, err);
    }
    SetCatalogueFolder(arguments);
    const CBuilding building = LoadBuilding(arguments);
    SetValveFolder(arguments, HasValves(building));
    return Deliver(MakeSchedule(building), arguments, out, err);
}

} // namespace

ExitCode RunBatch(const std::vector<CString>& arguments, std::ostream& out, std::ostream& err)
{
    try {
        return Run(ParseArguments(arguments), out, err);
    } catch (const CArgumentException& error) {
        return Report(err, error.GetErrorMessage() + L" (--help mostra le opzioni)",
                      ExitCode::wrongArguments);
    } catch (const CContentException& error) {
        return Report(err, error.GetErrorMessage(), ExitCode::badBuilding);
    } catch (const std::exception& error) {
        return Report(err, L"errore imprevisto: " + WideFromUtf8(error.what()),
                      ExitCode::unexpected);
    }
}
