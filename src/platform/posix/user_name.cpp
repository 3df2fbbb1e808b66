#include "platform/user_name.h"

#include "platform/encoding.h"

#include <pwd.h>
#include <unistd.h>

CString UserName()
{
    const passwd* const entry = getpwuid(geteuid());
    return entry != nullptr ? WideFromUtf8(entry->pw_name) : CString();
}
