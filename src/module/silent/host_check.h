#pragma once

#include "host/host_identity.h"
#include "platform/text.h"

#include <vector>

/// One function that the module asks of its host, and what answers it in this process.
struct CHostFunction
{
    const char* name = nullptr;
    /// The library that holds it, and what that says about itself; null if it says nothing.
    CString file;
    const CHostIdentity* identity = nullptr;
};

/// Why these do not make one host that fits this module, a text for the user; empty if they do. All
/// of them name the same host at this module's interface, or none names any.
CString HostFault(const std::vector<CHostFunction>& functions);

/// The functions that every host has had from the first interface on, as this process has them.
std::vector<CHostFunction> LoadedHostFunctions();

/// True if the host of this process fits the module. Where it does not, the first call says so in a
/// message, and each one to the host's listener. Asked once a process; the answer stays.
bool HostFits();
