#include "selection/dialog/hk_auswahl_tree_template.h"

#include "dialogs/brushed_dialog.h"

const DialogTemplate& HKAuswahlTreeTemplate()
{
    using enum ControlKind;
    static const DialogTemplate vorlage = {
        18002,
        L"Scelta Corpi scaldanti",
        166,
        169,
        frameResizable,
        {
            {kBannerId, canvas, L"", 0, 0, 16, 169},
            {idProduktBaum, tree, L"", 22, 6, 138, 137},
            {kIdOk, defaultButton, L"OK", 56, 149, 50, 14},
            {kIdCancel, button, L"Annulla", 110, 149, 50, 14},
        },
    };
    return vorlage;
}
