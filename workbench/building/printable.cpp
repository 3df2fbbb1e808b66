#include "workbench/building/printable.h"

#include <algorithm>
#include <string_view>

namespace workbench {

bool IsControl(wchar_t c)
{
    return c < L' ' || (c >= 0x7f && c < 0xa0);
}

bool IsBlank(wchar_t c)
{
    constexpr std::wstring_view kBlanks =
        L" \t\n\v\f\r\x0085\x00a0\x1680\x2028\x2029\x202f\x205f\x3000";
    return kBlanks.find(c) != kBlanks.npos || (c >= 0x2000 && c <= 0x200a);
}

CString Printable(CString text)
{
    std::ranges::replace_if(text, IsControl, L'?');
    return text;
}

} // namespace workbench
