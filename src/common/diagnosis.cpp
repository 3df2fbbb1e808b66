#include "common/diagnosis.h"

#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "platform/loaded_library.h"

#include <optional>

namespace {

template <class Function>
void* FindBeside(Function* function)
{
    return CLoadedLibrary(function).Find(kHostDiagnosisFunction);
}

HostDiagnosisFunction Find()
{
    void* found = FindBeside(&GetVEDir);
    if (found == nullptr) {
        found = FindBeside(&FindHersteller);
    }
    if (found == nullptr) {
        found = CLoadedLibrary::FindAnywhere(kHostDiagnosisFunction);
    }
    return reinterpret_cast<HostDiagnosisFunction>(found);
}

/// Nothing as long as nobody has asked for it.
std::optional<HostDiagnosisFunction> g_listener;

HostDiagnosisFunction Listener()
{
    if (!g_listener) {
        g_listener = Find();
    }
    return *g_listener;
}

} // namespace

bool HasDiagnosisListener()
{
    return Listener() != nullptr;
}

void SetDiagnosisListener(HostDiagnosisFunction listener)
{
    g_listener = listener != nullptr ? std::optional(listener) : std::nullopt;
}

void TellDiagnosis(HostDiagnosis reason, const CString& text)
{
    if (const HostDiagnosisFunction listener = Listener()) {
        listener(static_cast<int>(reason), Utf8FromWide(text).c_str());
    }
}
