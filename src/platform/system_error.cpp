#include "platform/system_error.h"

#include "platform/encoding.h"

int ErrnoOf(const std::error_code& error)
{
    return error.default_error_condition().value();
}

CString ReasonOf(const std::error_code& error)
{
    return WideFromUtf8(error.default_error_condition().message());
}

CString ReasonOf(int osError)
{
    return WideFromUtf8(std::generic_category().message(osError));
}
