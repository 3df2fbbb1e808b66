#include "common/missing_fields.h"

#include "platform/format.h"

CString DescribeMissingFields(std::wstring_view record, std::size_t count, std::size_t needed)
{
    const CString first = FormatInt(static_cast<long long>(count));
    const CString last = FormatInt(static_cast<long long>(needed) - 1);
    return L"al record " + CString(record) +
           (first == last ? L" manca il campo " + last
                          : L" mancano i campi da " + first + L" a " + last);
}
