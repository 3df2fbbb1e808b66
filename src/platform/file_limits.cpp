#include "platform/file_limits.h"

#include "platform/format.h"

CString DescribeTooLarge(std::uint64_t limit)
{
    return L"Il file è troppo grande: il limite è di " +
           FormatInt(static_cast<long long>(limit / kMegabyte)) + L" MB.";
}
