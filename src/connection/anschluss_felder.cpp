#include "connection/anschluss_felder.h"

#include "common/units.h"
#include "host/host_fittings.h"

#include <algorithm>

void FuelleFelder(CAnschlussZustand& zustand)
{
    ConnValues& werte = zustand.m_Aktuell;
    werte = zustand.m_Eingang;
    zustand.m_TextSeitAN = MeterToText(werte.SeitAbstandAN);
    zustand.m_TextSeitRI = MeterToText(werte.SeitAbstandRI);
    zustand.m_TextName = werte.Name;
    zustand.m_Kreuz = werte.KreuzTyp;
    if (werte.KreuzTyp != 0) {
        zustand.m_TextKreuz = MeterToText(werte.KreuzAbstand);
    }
    if (werte.WandAbstand != 0.0) {
        zustand.m_bVonWand = true;
        zustand.m_TextWand = MeterToText(werte.WandAbstand);
    }
}

void LeseSeitAbstaende(CAnschlussZustand& zustand)
{
    zustand.m_Aktuell.SeitAbstandAN = TextToMeter(zustand.m_TextSeitAN);
    zustand.m_Aktuell.SeitAbstandRI = TextToMeter(zustand.m_TextSeitRI);
}

bool UebernehmeTyp(CAnschlussZustand& zustand, CAuswahlListe& typen)
{
    int index = typen.Gewaehlt();
    if (index < 0) {
        return false;
    }
    const Anschlussliste& liste = zustand.m_Anschlussliste;
    if (index >= liste.GetSize()) {
        index = 0;
        typen.Waehlen(index);
    }
    zustand.m_bInverti = false;
    zustand.m_Aktuell = liste[index];
    LeseSeitAbstaende(zustand);
    zustand.m_TextName = zustand.m_Aktuell.Name;
    return true;
}

bool LesePunkt(CAnschlussZustand& zustand)
{
    if (zustand.m_Punkt == Punkt::keiner) {
        return false;
    }
    ConnVector position{};
    ConnVector offset{};
    ConnVector winkel{};
    // The fields show no distances, and the record keeps those that it has.
    double seitAbstand = 0.0;
    double kreuzAbstand = 0.0;
    int kreuzTyp = 0;
    double wandAbstand = 0.0;
    if (lmGet_K_APUNKT_X(zustand.m_Aktuell.*FelderVon(zustand.m_Punkt).text, position.data(),
                         offset.data(), winkel.data(), seitAbstand, kreuzAbstand, kreuzTyp,
                         wandAbstand) == 0) {
        return false;
    }
    zustand.m_Rel = position;
    zustand.m_Offset = offset;
    zustand.m_Winkel = {winkel[0], winkel[1]};
    return true;
}

bool SchreibePunkt(CAnschlussZustand& zustand)
{
    if (zustand.m_Punkt == Punkt::keiner) {
        return false;
    }
    ConnValues& werte = zustand.m_Aktuell;
    const CPunktFelder& felder = FelderVon(zustand.m_Punkt);
    werte.*felder.position = zustand.m_Rel;
    werte.*felder.offset = zustand.m_Offset;
    werte.*felder.winkel = {zustand.m_Winkel[0], zustand.m_Winkel[1], 0.0};
    BauePunktText(werte, zustand.m_Punkt, 0.0, 0.0, 0);
    return true;
}

double Geschoben(double zahl, int delta)
{
    constexpr double kSchritt = 0.05;
    return delta < 1 ? zahl - kSchritt : zahl + kSchritt;
}

void ErgaenzeWandAbstand(CAnschlussZustand& zustand)
{
    if (zustand.m_bVonWand && TextToMeter(zustand.m_TextWand) == 0.0) {
        zustand.m_TextWand = zustand.m_TextSeitAN;
    }
}

bool IstNameVergeben(const CAnschlussZustand& zustand)
{
    return std::ranges::any_of(zustand.m_Anschlussliste, [&](const ConnValues& eintrag) {
        return eintrag.Name == zustand.m_TextName;
    });
}

void SchliesseAb(CAnschlussZustand& zustand)
{
    LeseSeitAbstaende(zustand);
    ConnValues& werte = zustand.m_Aktuell;
    werte.KreuzTyp = zustand.m_Kreuz;
    werte.KreuzAbstand = TextToMeter(zustand.m_TextKreuz);
    werte.WandAbstand = zustand.m_bVonWand ? TextToMeter(zustand.m_TextWand) : 0.0;
    for (const Punkt punkt : {Punkt::vorlauf, Punkt::ruecklauf}) {
        const CPunktFelder& felder = FelderVon(punkt);
        double& seitAbstand = werte.*felder.seitAbstand;
        if ((werte.*felder.winkel)[1] != 0.0) {
            seitAbstand = 0.0;
        }
        BauePunktText(werte, punkt, seitAbstand, werte.KreuzAbstand, werte.KreuzTyp);
    }
}
