#include "workbench/program/host_folders.h"

#include "host/host_prefs.h"
#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/program/arguments.h"

#include <cstdlib>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

namespace fs = std::filesystem;

bool IsFolder(const CString& path)
{
    std::error_code error;
    return fs::is_directory(ResolvePath(path), error);
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
    if (arguments.strWorkplace.empty()) {
        return;
    }
    if (!IsFolder(arguments.strWorkplace)) {
        throw CArgumentException(L"--workplace: la cartella non esiste: " + arguments.strWorkplace);
    }
    reference_host::OverrideHostSetting(reference_host::kSettingLocalPath, arguments.strWorkplace);
}

void RequireCatalogueFolder()
{
    if (!IsFolder(GetHKDir(false))) {
        throw CArgumentException(L"la cartella dei cataloghi non esiste: " + GetHKDir(false));
    }
}

void RequireValveFolder()
{
    if (!IsFolder(GetVEDir(false))) {
        throw CArgumentException(L"--valve-catalogues: la cartella delle valvole non esiste: " +
                                 GetVEDir(false));
    }
}

std::optional<fs::path> InstalledDataFolder()
{
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path data = program.parent_path().parent_path() / "share" / "radsel";
    return fs::is_directory(data / "catalogues", error) ? std::optional(data) : std::nullopt;
}

void UseInstalledData()
{
    const std::optional<fs::path> data = InstalledDataFolder();
    if (!data) {
        return;
    }
    const std::pair<const char*, const char*> places[] = {
        {"RADSEL_HKDIR", "catalogues"},
        {"RADSEL_VEDIR", "valves"},
        {"RADSEL_HKBLOCKDIR", "drawing/heizkoerper.dxf"},
        {"RADSEL_VEBLOCKDIR", "drawing/ventile.dxf"},
        {"TGA_DATA_SINGLE", "root"},
    };
    for (const auto& [variable, place] : places) {
        setenv(variable, (*data / place).c_str(), 0);
    }
}

} // namespace workbench
