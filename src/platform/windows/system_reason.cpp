#include "platform/system_error.h"

#include "platform/windows/handle.h"

#include <array>

int ErrnoOfSystem(int systemError)
{
    return kFirstErrnoOfSystem + systemError;
}

CString SystemReasonOf(int systemError)
{
    constexpr DWORD kHow =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    std::array<wchar_t, 512> text = {};
    const DWORD length = FormatMessageW(kHow, nullptr, static_cast<DWORD>(systemError), 0,
                                        text.data(), static_cast<DWORD>(text.size()), nullptr);
    CString reason(text.data(), length);
    reason.erase(reason.find_last_not_of(L" .\r\n") + 1);
    return reason.empty() ? L"errore " + std::to_wstring(systemError) : reason;
}
