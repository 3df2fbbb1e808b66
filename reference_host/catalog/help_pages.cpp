#include "reference_host/catalog/help_pages.h"

#include "host/host_catalog.h"
#include "platform/encoding.h"
#include "platform/path.h"
#include "reference_host/catalog/detached_program.h"
#include "reference_host/prefs/host_settings.h"

#include <dlfcn.h>

#include <string>
#include <system_error>
#include <vector>

namespace reference_host {

namespace {

namespace fs = std::filesystem;

/// The folder that the folder of this library stands in; empty if the system does not tell.
fs::path Prefix()
{
    static const char here = 0;
    Dl_info info{};
    if (dladdr(&here, &info) == 0 || info.dli_fname == nullptr) {
        return {};
    }
    std::error_code error;
    const fs::path library = fs::canonical(info.dli_fname, error);
    return library.parent_path().parent_path();
}

std::vector<fs::path> HelpFolders()
{
    const CString chosen = GetHostSetting(kSettingHelpFolder, CString());
    if (!chosen.empty()) {
        return {ResolvePath(chosen)};
    }
    const fs::path prefix = Prefix();
    return {prefix / "share" / "radsel" / "help", prefix / "help"};
}

} // namespace

std::optional<fs::path> FindHelpPage(unsigned dialogId)
{
    for (const fs::path& folder : HelpFolders()) {
        for (const char* const ending : {".pdf", ".html"}) {
            const fs::path page = folder / (std::to_string(dialogId) + ending);
            std::error_code error;
            if (fs::is_regular_file(page, error)) {
                return page;
            }
        }
    }
    return std::nullopt;
}

} // namespace reference_host

using namespace reference_host;

void ShowPDF(unsigned dialogId, int /*art*/)
{
    const std::optional<fs::path> page = FindHelpPage(dialogId);
    if (page) {
        StartDetached(Utf8FromWide(GetHostSetting(kSettingHelpProgram, L"xdg-open")),
                      page->string());
    }
}
