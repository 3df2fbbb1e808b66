#include "platform/path.h"

CString JoinPath(const CString& folder, const CString& name)
{
    return folder + (folder.ends_with(L'\\') ? L"" : L"\\") + name;
}
