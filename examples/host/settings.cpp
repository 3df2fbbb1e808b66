#include "settings.h"

#include "host/host_base.h"
#include "host/host_prefs.h"
#include "host_defaults/answers.h"
#include "platform/encoding.h"
#include "platform/path.h"

#include <fstream>
#include <map>
#include <string>

namespace {

struct CSettings
{
    std::filesystem::path folder;
    std::map<std::string, std::string> values;
};

CSettings& Settings()
{
    static CSettings settings;
    return settings;
}

std::string Trimmed(const std::string& text)
{
    const auto first = text.find_first_not_of(" \t\r");
    const auto last = text.find_last_not_of(" \t\r");
    return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
}

/// A unit by its word, as the code that the module knows: metres unless it is one of the others.
int UnitSetting(const char* key)
{
    const CString unit = Setting(key);
    return unit == L"mm" ? 1000 : unit == L"cm" ? 100 : 1;
}

bool DeliverFolder(const char* key, CString& path)
{
    // "Not known" leaves the caller's text alone.
    if (Setting(key).empty()) {
        return false;
    }
    path = TextFromPath(FolderSetting(key));
    return true;
}

} // namespace

bool LoadSettings(const std::filesystem::path& file)
{
    Settings().folder = std::filesystem::absolute(file).parent_path();
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);) {
        const auto equals = line.find('=');
        if (equals != std::string::npos) {
            Settings().values[Trimmed(line.substr(0, equals))] = Trimmed(line.substr(equals + 1));
        }
    }
    // A file that was opened and read has ended; one that is missing never began.
    return lines.eof();
}

CString Setting(const char* key)
{
    const auto found = Settings().values.find(key);
    // Whatever the locale is, and whatever bytes the file holds.
    return found == Settings().values.end() ? CString() : WideFromUtf8(found->second);
}

std::filesystem::path FolderSetting(const char* key)
{
    // From its bytes: the standard library takes wide text with ASCII letters only for a path.
    return Settings().folder / Utf8FromWide(Setting(key));
}

// What the module asks, out of the settings. What is not written here the defaults answer.

CString GetHKDir(bool /*projectCopy*/)
{
    // Shown to the user in the dialog; this host's radiators are in memory.
    return L"(catalogo interno)";
}

CString GetVEDir(bool /*projectCopy*/)
{
    return TextFromPath(FolderSetting("valves"));
}

void lmGetDimension2(int& code)
{
    code = UnitSetting("drawing_unit");
}

int lmGetDimensionUsr()
{
    return UnitSetting("user_unit");
}

void lmGetHKLayer(CString& layer)
{
    layer = Setting("radiator_layer");
    if (layer.empty()) {
        host_defaults::lmGetHKLayer(layer);
    }
}

bool lmGetGlobalSuperUser(bool& superUser)
{
    superUser = Setting("superuser") == L"yes";
    return true;
}

bool lmGetProductLongName(CString& name)
{
    name = L"My CAD";
    return true;
}

bool configGetWorkPathServer(CString& path)
{
    return DeliverFolder("server", path);
}

bool configGetWorkPathLocal(CString& path)
{
    return DeliverFolder("workplace", path);
}
