#include "connection/kurzliste.h"
#include "connection/test_ansicht.h"
#include "fuzz/entries.h"
#include "host/host_fittings.h"
#include "platform/encoding.h"
#include "platform/environment.h"
#include "platform/exception.h"
#include "support/temp_folder.h"

#include <optional>
#include <string>

namespace {

/// The numbers of a point text.
struct Zahlen
{
    ConnVector position{};
    ConnVector offset{};
    ConnVector winkel{};
    double seitAbstand = 0.0;
    double kreuzAbstand = 0.0;
    int kreuzTyp = 0;
    double wandAbstand = 0.0;

    friend bool operator==(const Zahlen&, const Zahlen&) = default;
};

int Read(const CString& text, Zahlen& zahlen)
{
    return lmGet_K_APUNKT_X(text, zahlen.position.data(), zahlen.offset.data(),
                            zahlen.winkel.data(), zahlen.seitAbstand, zahlen.kreuzAbstand,
                            zahlen.kreuzTyp, zahlen.wandAbstand);
}

} // namespace

void RunPunktText(std::span<const std::uint8_t> bytes)
{
    CString text;
    AppendCp1252(text, bytes);
    Zahlen zahlen;
    if (Read(text, zahlen) == 0) {
        Require(zahlen == Zahlen(), "a text without a number touches nothing");
        return;
    }
    CString built;
    lmSet_K_APUNKT_X(built, zahlen.position.data(), zahlen.offset.data(), zahlen.winkel.data(),
                     zahlen.seitAbstand, zahlen.kreuzAbstand, zahlen.kreuzTyp, zahlen.wandAbstand);
    Require(built.size() < 512, "a text fits the exchange of points");
    Zahlen again;
    Require(Read(built, again) == 12, "a built text has all numbers");
    Require(again == zahlen, "what is written reads back");
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
