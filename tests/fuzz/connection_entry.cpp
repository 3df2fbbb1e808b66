#include "connection/kurzliste.h"
#include "platform/encoding.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "tests/fuzz/entries.h"
#include "tests/host_defaults/fittings/punkt_werte.h"
#include "tests/src/connection/test_ansicht.h"
#include "tests/support/temp_folder.h"

#include <optional>
#include <string>

void RunPunktText(std::span<const std::uint8_t> bytes)
{
    CString text;
    AppendCp1252(text, bytes);
    PunktWerte werte;
    if (werte.Get(text) == 0) {
        Require(werte == PunktWerte(), "a text without a number touches nothing");
        return;
    }
    const CString built = werte.Set();
    Require(built.size() < 512, "a text fits the exchange of points");
    PunktWerte again;
    Require(again.Get(built) == 12, "a built text has all numbers");
    Require(again == werte, "what is written reads back");
}

void RunKurzliste(std::span<const std::uint8_t> bytes)
{
    static const CTempFolder folder;
    folder.WriteBytes("HEIZUNG/Vent.txt", std::string(bytes.begin(), bytes.end()));
    const EnvironmentReader before =
        SetEnvironmentReader([](const CString&) { return std::optional(folder.Path()); });
    CAnschlussZustand zustand;
    CTestAnsicht ansicht;
    try {
        LeseVentTxt(zustand, ansicht);
        FindeAnschlussTyp(zustand, ansicht);
    } catch (const CInvalidArgException&) {
        // A pair that begins on the last line.
    }
    SetEnvironmentReader(before);
    for (const ConnValues& eintrag : zustand.m_Anschlussliste) {
        zustand.m_Aktuell = eintrag;
        PruefeSeitAbstand(zustand, ansicht);
        TauscheAnRi(zustand, ansicht);
    }
}
