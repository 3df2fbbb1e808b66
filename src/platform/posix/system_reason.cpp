#include "platform/system_error.h"

#include "platform/encoding.h"

int ErrnoOfSystem(int systemError)
{
    return systemError;
}

CString SystemReasonOf(int systemError)
{
    return WideFromUtf8(std::system_category().message(systemError));
}
