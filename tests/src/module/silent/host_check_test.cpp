#include "module/silent/host_check.h"

#include <gtest/gtest.h>

namespace {

const CHostIdentity kOurs = {kHostInterfaceVersion, "a CAD"};
const CHostIdentity kOursOfAnotherLibrary = {kHostInterfaceVersion, "a CAD"};
const CHostIdentity kOld = {kHostInterfaceVersion - 1, "a CAD"};
const CHostIdentity kNew = {kHostInterfaceVersion + 1, "a CAD"};
const CHostIdentity kOther = {kHostInterfaceVersion, "another CAD"};

CString FaultOf(const CHostIdentity* prefs, const CHostIdentity* catalog)
{
    return HostFault({{"GetHKDir", L"libHostPrefs.so", prefs},
                      {"GetVEDir", L"libHostPrefs.so", prefs},
                      {"ReadHKDaten", L"libHostCatalog.so", catalog}});
}

TEST(HostCheck, OneHostOfThisInterfaceFits)
{
    EXPECT_EQ(FaultOf(nullptr, nullptr), L"");
    EXPECT_EQ(FaultOf(&kOurs, &kOursOfAnotherLibrary), L"");
}

TEST(HostCheck, WhatDoesNotFitIsNamedWithItsLibrary)
{
    const CString prefs = L"GetVEDir: \"a CAD\", libHostPrefs.so";
    const CString mixed[] = {FaultOf(&kOurs, &kOther), FaultOf(&kOurs, nullptr)};
    for (const CString& fault : mixed) {
        EXPECT_NE(fault.find(prefs), CString::npos);
    }
    EXPECT_NE(mixed[0].find(L"ReadHKDaten: \"another CAD\", libHostCatalog.so"), CString::npos);
    EXPECT_NE(mixed[1].find(L"ReadHKDaten: senza nome, libHostCatalog.so"), CString::npos);

    for (const CHostIdentity* const version : {&kOld, &kNew}) {
        const CString fault = FaultOf(&kOurs, version);
        EXPECT_NE(fault.find(L"interfaccia " + std::to_wstring(version->interfaceVersion)),
                  CString::npos);
        EXPECT_NE(fault.find(L"ReadHKDaten: \"a CAD\", libHostCatalog.so"), CString::npos);
    }
}

} // namespace
