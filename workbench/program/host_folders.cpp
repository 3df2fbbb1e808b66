#include "workbench/program/host_folders.h"

#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"
#include "workbench/program/arguments.h"

#include <cstdlib>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

namespace fs = std::filesystem;

/// Raises CArgumentException, with `what` in front and the system's reason where it has one, if the
/// path is that of no folder.
void RequireFolder(const CString& what, const CString& path)
{
    std::error_code error;
    const fs::file_type type = fs::status(ResolvePath(path), error).type();
    if (type == fs::file_type::none) {
        throw CArgumentException(what + L" non si può leggere: " + path + L": " +
                                 WideFromUtf8(error.message()));
    }
    if (type != fs::file_type::directory) {
        throw CArgumentException(what + L" non esiste: " + path);
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
