#include "platform/system_error.h"

#include <cerrno>

bool IsDiskFull(int osError)
{
    return osError == ENOSPC || osError == EFBIG;
}
