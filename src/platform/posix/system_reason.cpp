#include "platform/system_error.h"

#include "platform/encoding.h"

CString SystemReasonOf(int systemError)
{
    return WideFromUtf8(std::system_category().message(systemError));
}
