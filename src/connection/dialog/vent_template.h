#pragma once

#include "uikit/dialog_template.h"

/// Controls of the valve and connection dialog.
enum VentControl : int
{
    idTypAktiv = 18076,
    idTypen = 362,
    idKreuzKeins = 18104,
    idKreuzAnUeberRi = 18100,
    idKreuzRiUeberAn = 18101,
    idKreuzAbstand = 18103,
    idKreuzEinheit = 18046,
    idSeitAN = 18041,
    idSeitEinheitAN = 18042,
    idSeitRI = 18043,
    idSeitEinheitRI = 18044,
    idVonWand = 18106,
    idWand = 18105,
    idWandEinheit = 18047,

    idBild = 16022,
    /// The buttons around the sketch, in the order of the preset table.
    idErsterPreset = 18079,
    idLetzterPreset = 18094,
    idInverti = 18040,

    idVentileAktiv = 18077,
    idPunktAN = 1024,
    idGruppeAN = 363,
    idWaehleAN = 367,
    idLeereAN = 18095,
    idDnAN = 371,
    idBezeichnungAN = 364,
    idEinstellbarAN = 370,
    idPunktRI = 1025,
    idGruppeRI = 365,
    idWaehleRI = 368,
    idLeereRI = 18096,
    idDnRI = 372,
    idBezeichnungRI = 366,
    idEinstellbarRI = 369,

    idGrafikRahmen = 18060,
    idGrafikTitelAN = 18061,
    idGrafikenAN = 18097,
    idLeereGrafik = 18099,
    idGrafikTitelRI = 18062,
    idGrafikenRI = 18098,

    idPunktRahmen = 18051,
    idRelTitel = 18052,
    idRelX = 1013,
    idPfeilRelX = 1034,
    idRelY = 1015,
    idPfeilRelY = 1040,
    idRelZ = 1016,
    idPfeilRelZ = 1042,
    idWinkel1 = 1017,
    idWinkel2 = 1018,
    idRichtung = 18075,
    idOffsetTitel = 18108,
    idOffsetX = 1014,
    idPfeilOffsetX = 1039,
    idOffsetY = 1020,
    idPfeilOffsetY = 1041,
    idOffsetZ = 1023,
    idPfeilOffsetZ = 1043,
    idFanCoil = 18045,

    idName = 18073,
    idSalva = 18071,
    idMemorizza = 18072,
    idErweitern = 18074,
};

/// The valve and connection dialog as data, in its expanded state.
const DialogTemplate& VentTemplate();
