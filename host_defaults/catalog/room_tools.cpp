#include "host/host_catalog.h"

CString CRoomTools::GetFloorName(const CString& raum)
{
    const auto dot = raum.find(L'.');
    const auto start = raum.find_first_not_of(L' ');
    if (dot == CString::npos || start == dot) {
        return {};
    }
    const auto last = raum.find_last_not_of(L' ', dot - 1);
    return raum.substr(start, last - start + 1);
}
