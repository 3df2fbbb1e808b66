#include "connection/dialog/wand_ab_template.h"

#include "dialogs/brushed_dialog.h"

const DialogTemplate& WandAbTemplate()
{
    using enum ControlKind;
    // Higher than its rows need, so that the name on the banner is not cut off.
    static const DialogTemplate vorlage = {
        18006,
        L"Distanze",
        174,
        112,
        frameFixed,
        {
            {kBannerId, canvas, L"", 0, 0, 16, 112},

            {kNoId, groupBox, L"Posiziona nel disegno", 22, 6, 146, 78},
            {kNoId, label, L"Distanza dal muro", 31, 33, 64, 9},
            {idAbstandWand, edit, L"", 98, 31, 48, 13, styleRight},
            {idEinheitWand, label, L"m", 150, 33, 14, 9},
            {kNoId, label, L"Distanza dal pav:", 31, 55, 64, 9},
            {idAbstandBoden, edit, L"", 98, 53, 48, 13, styleRight},
            {idEinheitBoden, label, L"m", 150, 55, 14, 9},

            {kIdOk, defaultButton, L"OK", 64, 92, 50, 14},
            {kIdCancel, button, L"Annulla", 118, 92, 50, 14},
        },
    };
    return vorlage;
}
