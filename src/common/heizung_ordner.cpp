#include "common/heizung_ordner.h"

#include "common/datenwurzel.h"
#include "host/host_base.h"
#include "platform/environment.h"
#include "platform/path.h"

namespace {

CString DatenWurzel()
{
    if (const auto wurzel = FindeDatenWurzel()) {
        return *wurzel;
    }
    static bool gemeldet = false;
    MeldeFehlendeWurzel(gemeldet);
    return {};
}

} // namespace

std::optional<CString> FindeDatenWurzel()
{
    CString server;
    if (configGetWorkPathServer(server)) {
        return server;
    }
    for (const wchar_t* variable : {L"TGA_DATA_SINGLE_S", L"TGA_DATA_SINGLE"}) {
        if (auto value = GetEnvironment(variable)) {
            return value;
        }
    }
    return std::nullopt;
}

CString HeizungPfad(const CString& dateiName)
{
    return JoinPath(DatenWurzel() + L"\\HEIZUNG\\", dateiName);
}
