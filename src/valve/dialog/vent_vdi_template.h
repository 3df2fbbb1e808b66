#pragma once

#include "uikit/dialog_template.h"

/// Controls of the valve selection dialog.
enum VentVdiControl : int
{
    idHersteller = 18039,
    idVentilBaum = 18019,

    idHerstellerRahmen = 18053,
    idHerstellerName = 18022,
    idNormDatumTitel = 18051,
    idNormDatum = 18023,
    idAusfuehrungTitel = 18052,
    idAusfuehrung = 18024,
    idZeile = 18043,

    idVentilRahmen = 18054,
    idBestellNrTitel = 18055,
    idBestellNr = 18025,
    idTgaNrTitel = 18056,
    idTgaNr = 18026,
    idDatanormTitel = 18057,
    idDatanorm = 18027,
    idVentilArt = 18028,
    idAntriebTitel = 18058,
    idAntrieb = 18030,
    idBauformTitel = 18059,
    idBauform = 18031,
    idWerkstoffTitel = 18060,
    idWerkstoff = 18032,
    idNennweiteTitel = 18061,
    idNennweite = 371,
    idDruckTitel = 18064,
    idDruck = 18035,
    idDruckEinheit = 18065,
    idKvsTitel = 18062,
    idKvs = 18036,
    idKvsEinheit = 18063,
    idEinstellbar = 18037,
    idKvKopf = 18066,
    idKvListe = 18029,
};

/// The valve selection dialog as data.
const DialogTemplate& VentVdiTemplate();
