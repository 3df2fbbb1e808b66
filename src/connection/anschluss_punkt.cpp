#include "connection/anschluss_punkt.h"

#include "host/host_fittings.h"

namespace {

constexpr CPunktFelder kVorlauf = {&ConnValues::AnschlussAN, &ConnValues::PosAN,
                                   &ConnValues::OffsetAN, &ConnValues::WinkelAN,
                                   &ConnValues::SeitAbstandAN};
constexpr CPunktFelder kRuecklauf = {&ConnValues::AnschlussRI, &ConnValues::PosRI,
                                     &ConnValues::OffsetRI, &ConnValues::WinkelRI,
                                     &ConnValues::SeitAbstandRI};

int LeseText(ConnValues& werte, const CPunktFelder& felder, double& seitZiel, double& kreuzZiel)
{
    return lmGet_K_APUNKT_X(werte.*felder.text, (werte.*felder.position).data(),
                            (werte.*felder.offset).data(), (werte.*felder.winkel).data(), seitZiel,
                            kreuzZiel, werte.KreuzTyp, werte.WandAbstand);
}

} // namespace

const CPunktFelder& FelderVon(Punkt punkt)
{
    return punkt == Punkt::ruecklauf ? kRuecklauf : kVorlauf;
}

int LesePunktText(ConnValues& werte, Punkt punkt)
{
    const CPunktFelder& felder = FelderVon(punkt);
    return LeseText(werte, felder, werte.*felder.seitAbstand, werte.KreuzAbstand);
}

bool LesePunktTextGekreuzt(ConnValues& werte, Punkt punkt)
{
    const CPunktFelder& felder = FelderVon(punkt);
    return LeseText(werte, felder, werte.KreuzAbstand, werte.*felder.seitAbstand) != 0;
}

void BauePunktText(ConnValues& werte, Punkt punkt, double seitAbstand, double kreuzAbstand,
                   int kreuzTyp)
{
    constexpr double kKeinWandAbstand = 0.0;
    const CPunktFelder& felder = FelderVon(punkt);
    lmSet_K_APUNKT_X(werte.*felder.text, (werte.*felder.position).data(),
                     (werte.*felder.offset).data(), (werte.*felder.winkel).data(), seitAbstand,
                     kreuzAbstand, kreuzTyp, kKeinWandAbstand);
}
