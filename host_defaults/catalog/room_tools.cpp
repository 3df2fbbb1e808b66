#include "host/host_catalog.h"

#include "host_defaults/answers.h"

namespace host_defaults {

CString GetFloorName(const CString& raum)
{
    const auto dot = raum.find(L'.');
    const auto start = raum.find_first_not_of(L' ');
    if (dot == CString::npos || start == dot) {
        return {};
    }
    const auto last = raum.find_last_not_of(L' ', dot - 1);
    return raum.substr(start, last - start + 1);
}

} // namespace host_defaults

CString CRoomTools::GetFloorName(const CString& raum)
{
    return host_defaults::GetFloorName(raum);
}
