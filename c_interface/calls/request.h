#pragma once

#include "c_interface/radsel_c.h"
#include "frame/handover.h"
#include "platform/file_fault.h"

#include <functional>
#include <optional>

namespace c_interface {

/// One call on a request: the hand-over that the module works on, and the way back to the caller.
class CRequest
{
public:
    /// Raises CCallFault if the record is null or damaged.
    explicit CRequest(radsel_request* request);

    HK_DATEN_VDI3805_UEBERGABE& Data() { return m_data; }

    /// Gives the record back, runs `give` for the caller's other places, and returns the result of
    /// the call. Of RADSEL_NOTHING the reason is kept, `otherwise` if the module has told none;
    /// where it is a catalogue that cannot be read, nothing is given and CCallFault raised.
    int Finish(int result, const std::function<void()>& give = {},
               const char* otherwise = "No row was chosen.");

private:
    radsel_request* m_request;
    HK_DATEN_VDI3805_UEBERGABE m_data;
};

/// Raises CCallFault if the maker's catalogue could not be read.
void RequireCatalogue(const CString& maker);

/// Raises CCallFault if there is a fault.
void RefuseFault(const std::optional<CFileFault>& fault);

} // namespace c_interface
