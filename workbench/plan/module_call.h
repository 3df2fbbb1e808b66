#pragma once

#include "platform/text.h"

#include <exception>
#include <string>

namespace workbench {

/// A call of the module that came to no answer. Nothing is taken over from such a call.
class CModuleFault : public std::exception
{
public:
    explicit CModuleFault(CString message);

    const char* what() const noexcept override { return m_what.c_str(); }

    /// What was asked and why there is no answer, a text for the user.
    const CString& GetMessage() const { return m_message; }

private:
    CString m_message;
    std::string m_what;
};

/// Raises the exception that is being handled as a CModuleFault of that call.
[[noreturn]] void RaiseModuleFault(const CString& asked);

/// Calls the module. Every call of its functions goes through here, since it lets exceptions of
/// damaged files pass: what was asked is told in front of the reason, for example "Attacchi".
template <class CALL>
auto CallModule(const CString& asked, CALL call) -> decltype(call())
{
    try {
        return call();
    } catch (const std::exception&) {
        RaiseModuleFault(asked);
    }
}

/// The module answers what it cannot read with the same silence as what is not there. Raises a
/// CModuleFault if the last call could not read the manufacturer's catalogue.
void RequireReadCatalogue(const CString& hersteller);

} // namespace workbench
