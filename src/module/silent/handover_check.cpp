#include "module/silent/handover_check.h"

#include "common/diagnosis.h"

bool HasHandover(const HK_DATEN_VDI3805_UEBERGABE* uebergabe)
{
    if (uebergabe == nullptr) {
        TellDiagnosis(HostDiagnosis::noCall, L"La chiamata non porta alcun record.");
    }
    return uebergabe != nullptr;
}
