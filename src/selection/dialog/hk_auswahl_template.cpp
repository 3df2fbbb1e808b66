#include "selection/dialog/hk_auswahl_template.h"

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
            {563, canvas, L"", 0, 0, 16, 254},

            {kNoId, groupBox, L"Rappresentazione", 22, 4, 200, 84},
            {3144, checkBox, L"Layer per corpi scaldanti", 28, 17, 110, 10},
            {250, canvas, L"", 28, 32, 14, 13, styleDisabled | styleNotify, L"Colore del layer"},
            {3187, comboEdit, L"", 46, 32, 94, 13, styleDisabled | styleSorted},
            {18051, label, L"Blocco rappresentazione", 28, 52, 82, 9},
            {3232, button, L"Layer...", 110, 48, 30, 13, styleHidden},
            {18080, comboList, L"", 28, 63, 112, 13, styleSorted},
            {16022, placeholder, L"", 144, 18, 72, 58, styleNoTabStop},
            {kNoId, label, L"Percorso", 22, 95, 34, 9},
            {18109, edit, L"", 58, 93, 164, 13, styleReadOnly},
            {18000, tree, L"", 22, 112, 200, 118},

            {kNoId, groupBox, L"Criteri di scelta", 228, 4, 160, 77},
            {kNoId, label, L"Lungh.:", 234, 15, 30, 9},
            {kNoId, label, L"da", 266, 15, 10, 9},
            {18002, edit, L"", 278, 13, 38, 13, styleRight},
            {kNoId, label, L"a", 321, 15, 7, 9},
            {18003, edit, L"", 330, 13, 38, 13, styleRight},
            {kNoId, label, L"mm", 371, 15, 14, 9},
            {kNoId, label, L"Altezza:", 234, 29, 30, 9},
            {kNoId, label, L"da", 266, 29, 10, 9},
            {18004, comboList, L"", 278, 27, 38, 13},
            {kNoId, label, L"a", 321, 29, 7, 9},
            {18008, comboList, L"", 330, 27, 38, 13},
            {kNoId, label, L"mm", 371, 29, 14, 9},
            {kNoId, label, L"Prof:", 234, 43, 30, 9},
            {kNoId, label, L"da", 266, 43, 10, 9},
            {18009, comboList, L"", 278, 41, 38, 13},
            {kNoId, label, L"a", 321, 43, 7, 9},
            {18010, comboList, L"", 330, 41, 38, 13},
            {kNoId, label, L"mm", 371, 43, 14, 9},
            {18017, checkBox, L"Indicazione resa", 234, 56, 92, 10},
            {18005, edit, L"", 330, 55, 38, 13, styleRight},
            {kNoId, label, L"W", 371, 57, 12, 9},
            {18019, checkBox, L"Visualizza tutti corpi scaldanti", 234, 69, 148, 10},

            {kNoId, groupBox, L"Resa CS", 228, 82, 102, 26},
            {18011, edit, L"", 234, 91, 30, 13, styleReadOnly | styleRight},
            {kNoId, label, L"W", 266, 93, 10, 9},
            {18049, checkBox, L"Check1", 281, 92, 8, 10, styleNone,
             L"Percentuale del fabbisogno del locale"},
            {18016, edit, L"", 291, 91, 24, 13, styleRight},
            {kNoId, label, L"%", 317, 93, 10, 9},
            {kNoId, groupBox, L"Variazione", 334, 82, 54, 26},
            {18015, edit, L"", 340, 91, 32, 13, styleReadOnly | styleRight},
            {kNoId, label, L"%", 375, 93, 10, 9},

            {kNoId, groupBox, L"Dati locale", 394, 4, 176, 41},
            {kNoId, label, L"Nome:", 400, 15, 23, 9},
            {18048, edit, L"", 424, 13, 96, 13, styleReadOnly},
            {18107, edit, L"", 526, 13, 24, 13, styleNone, L"Temperatura del locale"},
            {kNoId, label, L"°C", 553, 15, 12, 9},
            {kNoId, label, L"Fabbisogno locale", 400, 30, 60, 9},
            {18012, edit, L"", 461, 28, 30, 13, styleReadOnly | styleRight},
            {kNoId, label, L"W", 494, 30, 10, 9},
            {18047, checkBox, L"Rimanenza", 512, 29, 54, 10},

            {kNoId, groupBox, L"Sistema Riscaldamento", 394, 47, 176, 41},
            {7006, comboList, L"", 400, 56, 130, 13},
            {268, button, L"", 533, 55, 15, 14, styleNone, L"Salva il sistema"},
            {269, button, L"", 550, 55, 15, 14, styleNone, L"Elimina il sistema"},
            {kNoId, label, L"Nome:", 400, 73, 23, 9},
            {7007, edit, L"", 424, 71, 62, 13},
            {kNoId, label, L"AN", 490, 73, 11, 9},
            {7008, edit, L"", 502, 71, 24, 13, styleNone, L"Temperatura di mandata [°C]"},
            {kNoId, label, L"RI", 531, 73, 8, 9},
            {7009, edit, L"", 541, 71, 24, 13, styleNone, L"Temperatura di ritorno [°C]"},

            {7028, button, L"Valvole...", 394, 93, 85, 14},
            {7022, button, L"Distanza...", 485, 93, 85, 14},

            {kNoId, label, L"Esp:", 22, 237, 18, 9, styleHidden},
            {18018, edit, L"", 44, 235, 40, 13, styleReadOnly | styleHidden},

            {18001, placeholder, L"", 228, 112, 342, 118},

            {1, defaultButton, L"OK", 233, 235, 52, 14},
            {2, button, L"Annulla", 291, 235, 52, 14},
        },
    };
    return vorlage;
}
