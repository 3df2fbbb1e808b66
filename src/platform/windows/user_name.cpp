#include "platform/user_name.h"

#include "platform/windows/handle.h"

#include <lmcons.h>

CString UserName()
{
    DWORD size = UNLEN + 1;
    CString name(size, L'\0');
    // The size that comes back counts the character behind the name.
    const bool isTold = GetUserNameW(name.data(), &size) != 0;
    name.resize(isTold ? size - 1 : 0);
    return name;
}
