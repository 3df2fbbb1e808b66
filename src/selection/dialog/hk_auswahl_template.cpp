#include "selection/dialog/hk_auswahl_template.h"

#include "dialogs/brushed_dialog.h"
#include "selection/auswahl_controls.h"

/// The dialog grows downward and moves nothing out of the way, so that tree and grid, which grow
/// with it, stand below everything but OK and Annulla.
const DialogTemplate& HKAuswahlTemplate()
{
    using enum ControlKind;
    static const DialogTemplate vorlage = {
        18000,
        L"Scelta Corpi scaldanti",
        576,
        254,
        frameResizable,
        {
            {kBannerId, canvas, L"", 0, 0, 16, 254},

            {kNoId, groupBox, L"Rappresentazione", 22, 4, 200, 84},
            {idLayerAktiv, checkBox, L"Layer per corpi scaldanti", 28, 17, 110, 10},
            {idFarbe, canvas, L"", 28, 32, 14, 13, styleDisabled | styleNotify,
             L"Colore del layer"},
            {idLayer, comboEdit, L"", 46, 32, 94, 13, styleDisabled | styleSorted},
            {idBlockTitel, label, L"Blocco rappresentazione", 28, 52, 82, 9},
            {idLayerDialog, button, L"Layer...", 110, 48, 30, 13, styleHidden},
            {idBloecke, comboList, L"", 28, 63, 112, 13, styleSorted},
            {idVorschau, placeholder, L"", 144, 18, 72, 58, styleNoTabStop},
            {kNoId, label, L"Percorso", 22, 95, 34, 9},
            {idPfad, edit, L"", 58, 93, 164, 13, styleReadOnly},
            {idBaum, tree, L"", 22, 112, 200, 118},

            {kNoId, groupBox, L"Criteri di scelta", 228, 4, 160, 77},
            {kNoId, label, L"Lungh.:", 234, 15, 30, 9},
            {kNoId, label, L"da", 266, 15, 10, 9},
            {idLaengeVon, edit, L"", 278, 13, 38, 13, styleRight},
            {kNoId, label, L"a", 321, 15, 7, 9},
            {idLaengeBis, edit, L"", 330, 13, 38, 13, styleRight},
            {kNoId, label, L"mm", 371, 15, 14, 9},
            {kNoId, label, L"Altezza:", 234, 29, 30, 9},
            {kNoId, label, L"da", 266, 29, 10, 9},
            {idHoeheVon, comboList, L"", 278, 27, 38, 13},
            {kNoId, label, L"a", 321, 29, 7, 9},
            {idHoeheBis, comboList, L"", 330, 27, 38, 13},
            {kNoId, label, L"mm", 371, 29, 14, 9},
            {kNoId, label, L"Prof:", 234, 43, 30, 9},
            {kNoId, label, L"da", 266, 43, 10, 9},
            {idTiefeVon, comboList, L"", 278, 41, 38, 13},
            {kNoId, label, L"a", 321, 43, 7, 9},
            {idTiefeBis, comboList, L"", 330, 41, 38, 13},
            {kNoId, label, L"mm", 371, 43, 14, 9},
            {idLeistungAngabe, checkBox, L"Indicazione resa", 234, 56, 92, 10},
            {idLeistungSoll, edit, L"", 330, 55, 38, 13, styleRight},
            {kNoId, label, L"W", 371, 57, 12, 9},
            {idAlleAnzeigen, checkBox, L"Visualizza tutti corpi scaldanti", 234, 69, 148, 10},

            {kNoId, groupBox, L"Resa CS", 228, 82, 102, 26},
            {idLeistungIst, edit, L"", 234, 91, 30, 13, styleReadOnly | styleRight},
            {kNoId, label, L"W", 266, 93, 10, 9},
            {idProzentAngabe, checkBox, L"Check1", 281, 92, 8, 10, styleNone,
             L"Percentuale del fabbisogno del locale"},
            {idProzent, edit, L"", 291, 91, 24, 13, styleRight},
            {kNoId, label, L"%", 317, 93, 10, 9},
            {kNoId, groupBox, L"Variazione", 334, 82, 54, 26},
            {idAbweichung, edit, L"", 340, 91, 32, 13, styleReadOnly | styleRight},
            {kNoId, label, L"%", 375, 93, 10, 9},

            {kNoId, groupBox, L"Dati locale", 394, 4, 176, 41},
            {kNoId, label, L"Nome:", 400, 15, 23, 9},
            {idRaum, edit, L"", 424, 13, 96, 13, styleReadOnly},
            {idRaumtemperatur, edit, L"", 526, 13, 24, 13, styleNone, L"Temperatura del locale"},
            {kNoId, label, L"°C", 553, 15, 12, 9},
            {kNoId, label, L"Fabbisogno locale", 400, 30, 60, 9},
            {idRaumBedarf, edit, L"", 461, 28, 30, 13, styleReadOnly | styleRight},
            {kNoId, label, L"W", 494, 30, 10, 9},
            {idRest, checkBox, L"Rimanenza", 512, 29, 54, 10},

            {kNoId, groupBox, L"Sistema Riscaldamento", 394, 47, 176, 41},
            {idHeizsysteme, comboList, L"", 400, 56, 130, 13},
            {idSpeichern, button, L"", 533, 55, 15, 14, styleNone, L"Salva il sistema"},
            {idLoeschen, button, L"", 550, 55, 15, 14, styleNone, L"Elimina il sistema"},
            {kNoId, label, L"Nome:", 400, 73, 23, 9},
            {idSystemName, edit, L"", 424, 71, 62, 13},
            {kNoId, label, L"AN", 490, 73, 11, 9},
            {idVorlauf, edit, L"", 502, 71, 24, 13, styleNone, L"Temperatura di mandata [°C]"},
            {kNoId, label, L"RI", 531, 73, 8, 9},
            {idRuecklauf, edit, L"", 541, 71, 24, 13, styleNone, L"Temperatura di ritorno [°C]"},

            {idVentile, button, L"Valvole...", 394, 93, 85, 14},
            {idAbstaende, button, L"Distanza...", 485, 93, 85, 14},

            {kNoId, label, L"Esp:", 22, 237, 18, 9, styleHidden},
            {idExponent, edit, L"", 44, 235, 40, 13, styleReadOnly | styleHidden},

            {idGitter, placeholder, L"", 228, 112, 342, 118},

            {kIdOk, defaultButton, L"OK", 233, 235, 52, 14},
            {kIdCancel, button, L"Annulla", 291, 235, 52, 14},
        },
    };
    return vorlage;
}
