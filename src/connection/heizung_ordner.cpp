#include "connection/heizung_ordner.h"

#include "host/host_base.h"
#include "platform/environment.h"
#include "platform/message.h"
#include "platform/path.h"

#include <utility>

namespace {

void MeldeFehlendeWurzel()
{
    static bool gemeldet = false;
    if (!std::exchange(gemeldet, true)) {
        // Installers look for the name of the variable, and the caption is what they see in the
        // list of windows.
        ShowMessage({L"Missing Environmental-Variable: TGA_DATA_SINGLE", L"Install-Error",
                     MessageIcon::stop});
    }
}

CString DatenWurzel()
{
    CString server;
    if (configGetWorkPathServer(server)) {
        return server;
    }
    for (const wchar_t* variable : {L"TGA_DATA_SINGLE_S", L"TGA_DATA_SINGLE"}) {
        if (const auto value = GetEnvironment(variable)) {
            return *value;
        }
    }
    MeldeFehlendeWurzel();
    return {};
}

} // namespace

CString HeizungPfad(const CString& dateiName)
{
    return JoinPath(DatenWurzel() + L"\\HEIZUNG\\", dateiName);
}
