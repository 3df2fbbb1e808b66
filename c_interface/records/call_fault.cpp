#include "c_interface/records/call_fault.h"

#include "platform/encoding.h"

namespace c_interface {

namespace {
CReason& Reason()
{
    thread_local CReason reason;
    return reason;
}
} // namespace

CHostFailure::CHostFailure(CReason reason)
    : CException(WideFromUtf8(reason.text)), m_reason(std::move(reason))
{
}

const CReason& LastReason()
{
    return Reason();
}

void KeepReason(CReason reason) noexcept
{
    Reason() = std::move(reason);
}

} // namespace c_interface
