#include "platform/system_error.h"

#include "platform/encoding.h"

namespace {

/// Errnos of this and more stand for failures that only the system has a number for.
constexpr int kFirstOfSystem = 1 << 24;

} // namespace

int ErrnoOf(const std::error_code& error)
{
    const std::error_condition condition = error.default_error_condition();
    const bool isKnown = condition.category() == std::generic_category();
    return condition.value() + (isKnown || !condition ? 0 : kFirstOfSystem);
}

CString ReasonOf(const std::error_code& error)
{
    return ReasonOf(ErrnoOf(error));
}

CString ReasonOf(int osError)
{
    return osError >= kFirstOfSystem ? SystemReasonOf(osError - kFirstOfSystem)
                                     : WideFromUtf8(std::generic_category().message(osError));
}
