#include "workbench/batch/host_folders.h"

#include "host/host_prefs.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "platform/message.h"
#include "platform/path.h"
#include "platform/program_file.h"
#include "platform/system_error.h"
#include "platform/whole_file.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/batch/arguments.h"

#include <system_error>
#include <utility>

namespace workbench {

namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kDataRoot = L"TGA_DATA_SINGLE";

/// Raises CArgumentException, with `what` in front and the system's reason where it has one, if the
/// path is that of no folder.
void RequireFolder(const CString& what, const CString& path)
{
    std::error_code error;
    const fs::file_type type = fs::status(ResolvePath(path), error).type();
    if (type == fs::file_type::none) {
        throw CArgumentException(what + L" non si può leggere: " + path + L": " + ReasonOf(error));
    }
    if (type != fs::file_type::directory) {
        throw CArgumentException(what + L" non esiste: " + path);
    }
}

void SetUnlessSet(const CString& variable, const fs::path& value)
{
    if (!GetEnvironment(variable)) {
        SetSystemEnvironment(variable, TextFromPath(value));
    }
}

/// Where the installed program keeps what its user changes: beside his settings. Empty for a user
/// without a home.
fs::path OwnWorkplace()
{
    const std::optional<CString> folder = reference_host::ConfigurationFolder();
    return folder ? ResolvePath(*folder) : fs::path();
}

/// Copies the files that `to` does not have yet, each in one piece: half a copy would stay.
void CopyMissing(const fs::path& from, const fs::path& to)
{
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(from)) {
        const fs::path target = to / fs::relative(entry.path(), from);
        if (entry.is_regular_file() && !fs::exists(target)) {
            fs::create_directories(target.parent_path());
            WriteWholeFile(TextFromPath(target), ReadWholeFile(TextFromPath(entry.path())).value());
        }
    }
}

/// Where the working place cannot be filled the installed lists are read.
void DoWithoutWorkplace(const fs::path& lists, const fs::path& own, const CString& reason)
{
    SetSystemEnvironment(kDataRoot, TextFromPath(lists));
    WriteMessage({L"radsel",
                  L"La cartella " + TextFromPath(own) +
                      L" non è scrivibile: elenchi e posizioni delle finestre non si "
                      L"conservano. " +
                      reason,
                  MessageIcon::warning});
}

/// Gives the installed program's working place the help switches and lists that it is to begin
/// with. Where that fails the installed ones are read, and nothing can be kept.
void FillOwnWorkplace()
{
    const std::optional<fs::path> data = InstalledDataFolder();
    const fs::path own = OwnWorkplace();
    if (!data || own.empty() || GetEnvironment(kDataRoot) != std::optional(TextFromPath(own))) {
        return;
    }
    try {
        CopyMissing(*data / "root", own);
        CopyMissing(*data / "workplace", own);
    } catch (const fs::filesystem_error& error) {
        DoWithoutWorkplace(*data / "root", own, ReasonOf(error.code()));
    } catch (const CFileException& error) {
        DoWithoutWorkplace(*data / "root", own, error.GetErrorMessage());
    }
}

} // namespace

void UseCatalogueFolder(const CArguments& arguments)
{
    if (!arguments.strCatalogues.empty()) {
        reference_host::OverrideHostSetting(reference_host::kSettingHKDir, arguments.strCatalogues);
    }
}

void UseValveFolder(const CArguments& arguments)
{
    if (!arguments.strValveCatalogues.empty()) {
        reference_host::OverrideHostSetting(reference_host::kSettingVEDir,
                                            arguments.strValveCatalogues);
    }
}

void UseWorkplace(const CArguments& arguments)
{
    FillOwnWorkplace();
    if (arguments.strWorkplace.empty()) {
        return;
    }
    RequireFolder(L"--workplace: la cartella", arguments.strWorkplace);
    reference_host::OverrideHostSetting(reference_host::kSettingLocalPath, arguments.strWorkplace);
}

void RequireCatalogueFolder()
{
    RequireFolder(L"la cartella dei cataloghi", GetHKDir(false));
}

void RequireValveFolder()
{
    RequireFolder(L"--valve-catalogues: la cartella delle valvole", GetVEDir(false));
}

std::optional<fs::path> InstalledDataFolder()
{
    std::error_code error;
    const fs::path data = (ProgramFile().parent_path() / RADSEL_WAY_TO_DATA).lexically_normal();
    return fs::is_directory(data / "catalogues", error) ? std::optional(data) : std::nullopt;
}

void UseInstalledData()
{
    const std::optional<fs::path> data = InstalledDataFolder();
    if (!data) {
        return;
    }
    const std::pair<const wchar_t*, const char*> places[] = {
        {L"RADSEL_HKDIR", "catalogues"},
        {L"RADSEL_VEDIR", "valves"},
        {L"RADSEL_HKBLOCKDIR", "drawing/heizkoerper.dxf"},
        {L"RADSEL_VEBLOCKDIR", "drawing/ventile.dxf"},
    };
    for (const auto& [variable, place] : places) {
        SetUnlessSet(variable, *data / place);
    }
    const fs::path own = OwnWorkplace();
    SetUnlessSet(kDataRoot, own.empty() ? *data / "root" : own);
}

std::vector<CString> InstalledDefaults()
{
    UseInstalledData();
    const auto data = InstalledDataFolder();
    if (!data) {
        return {};
    }
    return {L"--sample", TextFromPath(*data / "buildings" / "villa-dei-tigli.json")};
}

} // namespace workbench
