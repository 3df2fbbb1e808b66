#include "common/arbeits_ordner.h"

#include "common/datenwurzel.h"
#include "host/host_base.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "platform/path.h"

CString ArbeitsPfad(const CString& dateiName)
{
    CString ordner;
    if (configGetWorkPathLocal(ordner)) {
        return JoinPath(ordner, dateiName);
    }
    if (const auto wurzel = GetEnvironment(L"TGA_DATA_SINGLE")) {
        return JoinPath(*wurzel, dateiName);
    }
    static bool gemeldet = false;
    MeldeFehlendeWurzel(gemeldet);
    return dateiName;
}

void MitArbeitsDatei(const std::function<void()>& arbeit)
{
    try {
        arbeit();
    } catch (const CFileException&) {
        return;
    }
}
