// The exports compiled together with a catalogue whose reading fails: what the host sees of the
// module's resources while an export works, and after an exception has passed through it.

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/host_catalog.h"
#include "module/resource_context.h"

#include <gtest/gtest.h>

#include <functional>
#include <type_traits>

namespace {

HK_VDI3805_HERSTELLER maker;
int readings = 0;
ResourceOwner ownerDuringReading = ResourceOwner::host;

} // namespace

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
    ++readings;
    ownerDuringReading = CResourceContext::Current();
    throw CFileException::FromErrno(0, name);
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

TEST(ExportsContext, TheModulesResourcesAreCurrentDuringACallAndTheHostsAfterAnException)
{
    CString layer;
    int color = 0;
    Uebergabe uebergabe;
    OCArray<double> sizes;
    short places[2] = {};
    double contents[1] = {};
    const std::function<void()> calls[] = {
        [&] { HeizkoerperauswahlVDI3805(nullptr, &uebergabe, layer, color, false, false); },
        [&] { HeizkoerperauswahlVDI3805(nullptr, &uebergabe, layer, color, true, false); },
        [&] { HeizkoerperauswahlVDI3805Tree(&uebergabe); },
        [&] { Read_HK_Masse(uebergabe, sizes, sizes); },
        [&] { Read_HK_Masse(uebergabe, places, places, places, contents, 1); },
        [&] { HKGetMinTiefe(uebergabe); },
        [&] { HKGetMaxTiefe(uebergabe); },
        [&] { GetHK_Inhalt(uebergabe, 0.6, 0.1, 1.0); },
    };
    for (const auto& call : calls) {
        const int before = readings;
        ownerDuringReading = ResourceOwner::host;
        EXPECT_THROW(call(), CFileException);
        EXPECT_EQ(readings, before + 1);
        EXPECT_EQ(ownerDuringReading, ResourceOwner::module);
        EXPECT_EQ(CResourceContext::Current(), ResourceOwner::host);
    }
}

} // namespace
