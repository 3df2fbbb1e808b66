#include "platform/folder_name.h"

#include <string_view>

bool IsFolderName(const CString& name)
{
    constexpr std::wstring_view separators(L"\\/\0", 3);
    return !name.empty() && name != L"." && name != L".." &&
           name.find_first_of(separators) == CString::npos;
}
