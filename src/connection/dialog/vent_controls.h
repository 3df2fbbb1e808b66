#pragma once

/// Controls of the valve and connection dialog that its parts address by name.
enum VentControl
{
    idTypAktiv = 18076,
    idTypen = 362,
    idKreuz = 18104,
    idKreuzAbstand = 18103,
    idSeitAN = 18041,
    idSeitRI = 18043,
    idVonWand = 18106,
    idWand = 18105,
    idBild = 16022,
    idErsterPreset = 18079,
    idLetzterPreset = 18094,
    idInverti = 18040,
    idVentileAktiv = 18077,
    idDnAN = 371,
    idDnRI = 372,
    idEinstellbarAN = 370,
    idEinstellbarRI = 369,
    idWaehleAN = 367,
    idWaehleRI = 368,
    idLeereAN = 18095,
    idLeereRI = 18096,
    idPunktAN = 1024,
    idPunktRI = 1025,
    idGrafikenAN = 18097,
    idGrafikenRI = 18098,
    idLeereGrafik = 18099,
    idRichtung = 18075,
    idFanCoil = 18045,
    idName = 18073,
    idSalva = 18071,
    idMemorizza = 18072,
    idErweitern = 18074,
};

/// Its texts in the module's string table.
enum VentText
{
    textRegolabile = 114,
    textNonRegolabile = 115,
    textUebernehmen = 116,
    textEspandi = 117,
    textRiduci = 118,
};
