// The exports compiled together with a host whose services fail: which application object is
// current while an export works, and after an exception has passed through it.

#include "frame/conn_values.h"
#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/host_catalog.h"
#include "host/host_identity.h"
#include "host/host_prefs.h"
#include "module/radsel_app.h"
#include "module/silent/host_check.h"
#include "module/silent/resource_context.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <future>
#include <stdexcept>
#include <type_traits>

namespace {

HK_VDI3805_HERSTELLER maker;
int failures = 0;
CWinApp* appDuringFailure = nullptr;

[[noreturn]] void Fail(const CString& name)
{
    ++failures;
    appDuringFailure = CWinApp::Current();
    throw CFileException::FromErrno(0, name);
}

} // namespace

// All that is not defined here is the reference host's.
RADSEL_HOST_IDENTITY("radsel reference host")

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    return &maker;
}
HK_VDI3805_HERSTELLER* FindHersteller(const CString& /*name*/)
{
    return &maker;
}
HK_VDI3805_ART* FindArt(HK_VDI3805_HERSTELLER* /*maker*/, const CString& /*name*/)
{
    return nullptr;
}
HK_VDI3805_PRODUKT* FindProdukt(HK_VDI3805_ART* /*art*/, const CString& /*name*/)
{
    return nullptr;
}

int ReadVdiFile(const CString& name, HK_VDI3805_ART** /*art*/, double /*leistungEN442*/)
{
    Fail(name);
}

/// Asked while valves are fetched.
CString GetVEDir(bool /*unused*/)
{
    Fail(L"VEDir");
}

/// Asked by every dialog that is made.
bool lmGetAllowLumoSkin(bool& /*allowed*/)
{
    Fail(L"Skin");
}

namespace {

using Uebergabe = HK_DATEN_VDI3805_UEBERGABE;

// What a mangled name does not hold: the result types.
static_assert(std::is_same_v<decltype(HKGetMinTiefe), double(Uebergabe&)>);
static_assert(std::is_same_v<decltype(HKGetMaxTiefe), double(Uebergabe&)>);
static_assert(std::is_same_v<decltype(GetHK_Inhalt), double(Uebergabe&, double, double, double)>);
static_assert(std::is_same_v<decltype(HeizkoerperauswahlVDI3805),
                             int(CDrawer*, Uebergabe*, CString&, int&, bool, bool)>);
static_assert(std::is_same_v<decltype(HeizkoerperauswahlVDI3805Tree), int(Uebergabe*)>);
static_assert(
    std::is_same_v<decltype(VDI3805GetVentilDaten), bool(VDI3805_VENTIL_KV&, VDI3805_VENTIL_KV&)>);
static_assert(std::is_same_v<decltype(ShowVentVDI3805Dlg),
                             bool(const CString&, const CString&, VDI3805_VENTIL_KV&)>);
static_assert(std::is_same_v<decltype(DummyCall), void()>);

TEST(ExportsContext, ANullHandoverIsAnsweredWithNothing)
{
    CString layer = L"PIANTA";
    int color = 3;
    for (const bool dialog : {false, true}) {
        EXPECT_EQ(HeizkoerperauswahlVDI3805(nullptr, nullptr, layer, color, dialog, true), -1);
    }
    EXPECT_EQ(HeizkoerperauswahlVDI3805Tree(nullptr), -1);
    EXPECT_EQ(layer, L"PIANTA");
    EXPECT_EQ(color, 3);
}

TEST(ExportsContext, ASecondThreadIsRefusedWhileACallRuns)
{
    const CResourceContext running;
    Uebergabe uebergabe;
    auto other = std::async(std::launch::async, [&] { HKGetMinTiefe(uebergabe); });
    EXPECT_THROW(other.get(), std::logic_error);
    EXPECT_THROW(HKGetMinTiefe(uebergabe), CFileException) << "calls of one thread nest";
}

TEST(ExportsContext, TheModulesApplicationIsCurrentDuringACallAndTheHostsAfterAnException)
{
    CString layer;
    int color = 0;
    Uebergabe uebergabe;
    OCArray<double> sizes;
    short places[2] = {};
    double contents[1] = {};
    VDI3805_VENTIL_KV valve;
    ConnValues connection;
    bool flag = false;
    const CString number(36, L'0');
    const std::function<void()> calls[] = {
        [&] { HeizkoerperauswahlVDI3805(nullptr, &uebergabe, layer, color, false, false); },
        [&] { HeizkoerperauswahlVDI3805(nullptr, &uebergabe, layer, color, true, false); },
        [&] { HeizkoerperauswahlVDI3805Tree(&uebergabe); },
        [&] { Read_HK_Masse(uebergabe, sizes, sizes); },
        [&] { Read_HK_Masse(uebergabe, places, places, places, contents, 1); },
        [&] { HKGetMinTiefe(uebergabe); },
        [&] { HKGetMaxTiefe(uebergabe); },
        [&] { GetHK_Inhalt(uebergabe, 0.6, 0.1, 1.0); },
        [&] { ShowVentDlg(connection, valve, valve, flag, flag, flag, flag, nullptr, nullptr); },
        [&] { ShowVentVDI3805Dlg(L"", L"", valve); },
        [&] { VDI3805GetVentil(L"marca", number, L"marca", number, valve, valve); },
    };
    for (const auto& call : calls) {
        const int before = failures;
        appDuringFailure = nullptr;
        EXPECT_THROW(call(), CFileException);
        EXPECT_EQ(failures, before + 1);
        EXPECT_EQ(appDuringFailure, &theApp);
        EXPECT_EQ(CWinApp::Current(), nullptr);
    }
}

TEST(HostCheck, TheFunctionsOfThisProcessAreFoundWhereTheyAre)
{
    const std::vector<CHostFunction> functions = LoadedHostFunctions();
    const auto fileOf = [&functions](std::string_view name) {
        return std::find_if(functions.begin(), functions.end(),
                            [name](const CHostFunction& f) { return name == f.name; })
            ->file;
    };
    // One is defined by this program, the other by the reference host.
    EXPECT_NE(fileOf("GetVEDir").find(L"radsel_context_tests"), CString::npos);
    EXPECT_NE(fileOf("lmGetHKLayer").find(L"libHostPrefs"), CString::npos);
    EXPECT_TRUE(std::all_of(functions.begin(), functions.end(), [](const CHostFunction& f) {
        return f.identity != nullptr &&
               std::string_view(f.identity->host) == "radsel reference host";
    }));
}

} // namespace
