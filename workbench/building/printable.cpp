#include "workbench/building/printable.h"

#include <algorithm>

namespace workbench {

bool IsControl(wchar_t c)
{
    return c < L' ' || (c >= 0x7f && c < 0xa0);
}

CString Printable(CString text)
{
    std::ranges::replace_if(text, IsControl, L'?');
    return text;
}

} // namespace workbench
