// A host in one page: finds radiators through the shared library, knowing its headers only.

#include "frame/entry_points.h"
#include "frame/ventil_kv.h"
#include "host/host_catalog.h"
#include "host/host_diagnosis.h"

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <utility>

namespace {

int g_failures = 0;
int g_reason = 0;

void Expect(bool holds, const char* what)
{
    if (!holds) {
        std::cerr << "does not hold: " << what << '\n';
        ++g_failures;
    }
}

/// The reason that the module has told since the last call, 0 for none.
int TakeReason()
{
    return std::exchange(g_reason, 0);
}

/// The first product of the first maker whose file can be read.
bool FirstProduct(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    HK_VDI3805_HERSTELLER* const maker = ReadHKDaten();
    if (maker == nullptr || ReadVdiFile(maker->Name, &maker->pArt, uebergabe.Leistung) <= 0) {
        return false;
    }
    uebergabe.Hersteller = maker->Name;
    uebergabe.Art = maker->pArt->Name;
    uebergabe.Produkt = maker->pArt->pProdukt->Name;
    return true;
}

void ChooseRadiator(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    CString layer = L"HEIZUNG";
    int color = 7;
    const int index = HeizkoerperauswahlVDI3805(nullptr, &uebergabe, layer, color, false, false);
    Expect(index >= 0, "a radiator is found");
    Expect(layer == L"HEIZUNG" && color == 7, "the silent form leaves layer and colour alone");
    Expect(std::fabs(uebergabe.Umrechnungsfaktor - 0.495) < 1e-9, "the factor of 55/45/20");
    Expect(std::fabs(uebergabe.Daten.Leistung - 800.0) < 80.0, "its output is near to 800 W");

    Expect(TakeReason() == 0, "nothing is told of a radiator that is found");

    auto nothing = uebergabe;
    nothing.Produkt = L"nessuno";
    nothing.Daten.Leistung = 4711.0;
    Expect(HeizkoerperauswahlVDI3805(nullptr, &nothing, layer, color, false, false) == -1,
           "an unknown product finds nothing");
    Expect(TakeReason() == static_cast<int>(HostDiagnosis::unknownProduct), "and tells so");
    Expect(nothing.TypName == uebergabe.TypName && nothing.Daten.Leistung == 4711.0,
           "and leaves the hand-over untouched");
    Expect(HKGetMinTiefe(nothing) == -1.0, "nor has it a depth");

    auto undemanding = uebergabe;
    undemanding.Leistung = 0.0;
    HeizkoerperauswahlVDI3805(nullptr, &undemanding, layer, color, false, false);
    Expect(undemanding.Leistung == 1000.0, "a requirement of 0 becomes 1000 W and stays");
}

void AskSizes(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    const HK_DATEN_VDI3805& chosen = uebergabe.Daten;
    OCArray<double> heights;
    OCArray<double> depths;
    Read_HK_Masse(uebergabe, heights, depths);
    Expect(heights.GetSize() > 0 && depths.GetSize() > 0, "the product has sizes");
    Expect(HKGetMinTiefe(uebergabe) == depths[0], "the smallest depth comes first");
    Expect(HKGetMaxTiefe(uebergabe) == depths[depths.GetSize() - 1], "the largest comes last");

    constexpr int capacity = 20;
    short sizes[3][capacity + 1];
    double contents[capacity];
    Read_HK_Masse(uebergabe, sizes[0], sizes[1], sizes[2], contents, capacity);
    Expect(sizes[0][0] == static_cast<short>(heights[0]), "both forms agree on the heights");
    Expect(sizes[1][0] == static_cast<short>(depths[0]), "and on the depths");
    Expect(sizes[1][depths.GetSize()] == -1, "no length is among them");
    Expect(contents[0] == uebergabe.Typ.Daten.Inhalt, "the first content is that of Typ");
    Expect(GetHK_Inhalt(uebergabe, chosen.Hoehe / 1000.0, chosen.Tiefe / 1000.0,
                        chosen.Laenge / 1000.0) == chosen.Inhalt,
           "the water content of the chosen radiator");
}

} // namespace

void RadselDiagnosis(int reason, const char* text)
{
    std::cout << text << '\n';
    g_reason = reason;
}

int main()
{
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Leistung = 800.0;
    uebergabe.Vorlauf = 55.0;
    uebergabe.Ruecklauf = 45.0;
    uebergabe.Raumtemperatur = 20.0;
    uebergabe.HoeheMax = uebergabe.TiefeMax = uebergabe.LaengeMax = 3000.0;
    if (!FirstProduct(uebergabe)) {
        std::cerr << "no catalogue can be read\n";
        return EXIT_FAILURE;
    }
    ChooseRadiator(uebergabe);
    AskSizes(uebergabe);

    VDI3805_VENTIL_KV supply;
    VDI3805_VENTIL_KV back;
    Expect(!VDI3805GetVentilDaten(supply, back), "a record without a key fetches nothing");
    VDI3805GetVentil(L"marca", L"1", L"altra", L"2", supply, back);
    Expect(supply.Hersteller == L"marca" && back.VentilNr == L"2", "keys go to their records");

    CLumoError error;
    CLumoError other;
    other.m_nCode = 5;
    error = other;
    Expect(error.m_nCode == 5, "errors are assigned");
    DummyCall();
    return g_failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
