#include "platform/system_error.h"

#include "platform/encoding.h"

int ErrnoOf(const std::error_code& error)
{
    const std::error_condition condition = error.default_error_condition();
    return condition && condition.category() == std::system_category()
               ? ErrnoOfSystem(condition.value())
               : condition.value();
}

CString ReasonOf(const std::error_code& error)
{
    const std::error_condition condition = error.default_error_condition();
    return condition.category() == std::system_category() ? ReasonOf(ErrnoOf(error))
                                                          : WideFromUtf8(condition.message());
}

CString ReasonOf(int osError)
{
    return osError >= kFirstErrnoOfSystem ? SystemReasonOf(osError - kFirstErrnoOfSystem)
                                          : WideFromUtf8(std::generic_category().message(osError));
}
