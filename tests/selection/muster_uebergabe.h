#pragma once

#include "frame/handover.h"

/// A wish for 1000 W out of a product of the sample catalogues, at temperatures that are no whole
/// degrees.
inline HK_DATEN_VDI3805_UEBERGABE MusterUebergabe()
{
    HK_DATEN_VDI3805_UEBERGABE uebergabe;
    uebergabe.Hersteller = L"Valmorena";
    uebergabe.Art = L"Radiatori a piastra compatti";
    uebergabe.Produkt = L"Tipo 22";
    uebergabe.Leistung = 1000.0;
    uebergabe.LaengeMin = 400.0;
    uebergabe.LaengeMax = 3000.0;
    uebergabe.HoeheMin = 300.0;
    uebergabe.HoeheMax = 600.0;
    uebergabe.TiefeMin = 0.0;
    uebergabe.TiefeMax = 500.0;
    uebergabe.Vorlauf = 75.4;
    uebergabe.Ruecklauf = 65.2;
    uebergabe.Raumtemperatur = 20.5;
    return uebergabe;
}
