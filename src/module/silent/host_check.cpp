#include "module/silent/host_check.h"

#include "common/diagnosis.h"
#include "host/host_base.h"
#include "host/host_catalog.h"
#include "host/host_fittings.h"
#include "host/host_prefs.h"
#include "host/host_prompts.h"
#include "platform/encoding.h"
#include "platform/loaded_library.h"
#include "platform/message.h"
#include "platform/path.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace {

template <class Function>
CHostFunction Loaded(const char* name, Function* function)
{
    const CLoadedLibrary library(function);
    CHostFunction found;
    found.name = name;
    found.file = TextFromPath(library.File());
    if (void* const identity = library.Find(kHostIdentityFunction)) {
        found.identity = reinterpret_cast<HostIdentityFunction>(identity)();
    }
    return found;
}

std::string_view HostOf(const CHostFunction& function)
{
    return function.identity == nullptr ? std::string_view() : function.identity->host;
}

CString Describe(const CHostFunction& function)
{
    const CString host = function.identity == nullptr
                             ? CString(L"senza nome")
                             : L"\"" + WideFromUtf8(function.identity->host) + L"\"";
    return WideFromUtf8(function.name) + L": " + host + L", " + function.file;
}

CString Mixed(const CHostFunction& one, const CHostFunction& other)
{
    return L"Le librerie dell'applicazione provengono da programmi diversi e non possono lavorare "
           L"insieme:\n" +
           Describe(one) + L"\n" + Describe(other);
}

CString Outdated(const CHostFunction& function)
{
    return L"Una libreria dell'applicazione è fatta per un'altra versione del modulo "
           L"(interfaccia " +
           std::to_wstring(function.identity->interfaceVersion) + L" invece di " +
           std::to_wstring(kHostInterfaceVersion) + L"):\n" + Describe(function);
}

} // namespace

CString HostFault(const std::vector<CHostFunction>& functions)
{
    const auto other = std::adjacent_find(
        functions.begin(), functions.end(), [](const CHostFunction& a, const CHostFunction& b) {
            return (a.identity == nullptr) != (b.identity == nullptr) || HostOf(a) != HostOf(b);
        });
    if (other != functions.end()) {
        return Mixed(*other, *(other + 1));
    }
    const auto outdated =
        std::find_if(functions.begin(), functions.end(), [](const CHostFunction& function) {
            return function.identity != nullptr &&
                   function.identity->interfaceVersion != kHostInterfaceVersion;
        });
    return outdated == functions.end() ? CString() : Outdated(*outdated);
}

// A function that an older host lacks must not stand here: its name alone would keep the module
// from being loaded beside that host, and nobody would be told why.
std::vector<CHostFunction> LoadedHostFunctions()
{
#define LOADED(function) Loaded(#function, &(function))
    return {
        LOADED(GetHKDir),
        LOADED(GetVEDir),
        LOADED(lmGetDimension2),
        LOADED(lmGetDimensionUsr),
        LOADED(lmGetHKLayer),
        LOADED(lmGetHKLayerColor),
        LOADED(lmGetAutoLayerManagement),
        LOADED(lmGetDWGDefPath),
        LOADED(lmGetHKBlock),
        LOADED(lmSetHKBlock),
        LOADED(lmGetGlobalSuperUser),
        LOADED(ReadDefFile),
        LOADED(WriteDefFile),
        LOADED(ReadDefFile_VDI6030START),
        LOADED(WriteDefFile_VDI6030START),
        LOADED(lmGetCacheObject),
        LOADED(lmGetAllowLumoSkin),
        LOADED(lmGetLumoSkinColor),
        LOADED(lmGetAllowEnterAsTab),
        LOADED(lmGetCurrentWinposFile),
        LOADED(lmGetUseVistaBanner),
        LOADED(lmGetProductLongName),
        LOADED(ReadHKDaten),
        LOADED(FindHersteller),
        LOADED(FindArt),
        LOADED(FindProdukt),
        LOADED(ReadVdiFile),
        LOADED(ShowPDF),
        LOADED(CRoomTools::GetFloorName),
        LOADED(lmGet_K_APUNKT_X),
        LOADED(lmSet_K_APUNKT_X),
        LOADED(lmGet_K_APUNKT_BLOCK_Wc),
        LOADED(ShowTransDlg),
        LOADED(ShowBigLayerDlg),
        LOADED(configGetWorkPathServer),
        LOADED(configGetWorkPathLocal),
        LOADED(GetColorDlg),
        LOADED(GetRGBFromColor),
        LOADED(lmGetGewerkColor),
    };
#undef LOADED
}

bool HostFits()
{
    static std::optional<CString> fault;
    if (!fault) {
        // Known before the message shows: who answers it may call again.
        fault = HostFault(LoadedHostFunctions());
        if (!fault->empty()) {
            ShowMessage({CString(), *fault, MessageIcon::stop});
        }
    }
    if (!fault->empty()) {
        TellDiagnosis(HostDiagnosis::noCall, *fault);
    }
    return fault->empty();
}
