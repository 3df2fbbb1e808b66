#include "workbench/plan/radiator_choice.h"

#include "workbench/building/user_text.h"

namespace workbench {

CString DescribeRow(const CString& typ, const HK_DATEN_VDI3805& daten)
{
    const CString times = L" x ";
    return typ + L", " + FormatNumber(daten.Hoehe) + times + FormatNumber(daten.Tiefe) + times +
           FormatNumber(daten.Laenge) + L" mm, " + FormatWatts(daten.Leistung);
}

} // namespace workbench
