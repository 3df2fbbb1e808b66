#include "reference_host/catalog/help_pages.h"

#include "host/host_catalog.h"
#include "platform/detached_program.h"
#include "platform/loaded_library.h"
#include "platform/message.h"
#include "platform/path.h"
#include "reference_host/prefs/host_settings.h"

#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace reference_host {

namespace {

namespace fs = std::filesystem;

/// The folder of this library; empty if the system does not tell.
fs::path LibraryFolder()
{
    static const char here = 0;
    std::error_code error;
    return FollowLinks(CLoadedLibrary(&here).File(), error).parent_path();
}

std::vector<fs::path> HelpFolders()
{
    const CString chosen = GetHostSetting(kSettingHelpFolder, CString());
    if (!chosen.empty()) {
        return {ResolvePath(chosen)};
    }
    // Installed, the library lies one to four folders below the prefix; built, one below that.
    fs::path prefix = LibraryFolder().parent_path();
    std::vector<fs::path> folders = {prefix / "help"};
    for (int level = 0; level < 4; ++level) {
        folders.push_back(prefix / "share" / "radsel" / "help");
        prefix = prefix.parent_path();
    }
    return folders;
}

HelpTeller& Teller()
{
    static HelpTeller teller;
    return teller;
}

void Tell(const CString& text)
{
    if (const HelpTeller teller = Teller()) {
        teller(text);
    } else {
        WriteMessage({L"Guida", text, MessageIcon::warning});
    }
}

bool OpenPage(const fs::path& page)
{
    const CString program = GetHostSetting(kSettingHelpProgram, CString());
    return program.empty() ? OpenDocument(page) : StartDetached(program, page);
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

HelpTeller SetHelpTeller(HelpTeller teller)
{
    return std::exchange(Teller(), std::move(teller));
}

} // namespace reference_host

using namespace reference_host;

void ShowPDF(unsigned dialogId, int /*art*/)
{
    const std::optional<fs::path> page = FindHelpPage(dialogId);
    if (page && !OpenPage(*page)) {
        const CString kind = page->extension() == ".pdf" ? L"PDF" : L"HTML";
        Tell(L"La pagina della guida non si apre: manca un programma per i file " + kind +
             L".\nSi trova in " + TextFromPath(*page));
    }
}
