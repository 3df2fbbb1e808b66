#include "selection/dialog/hk_auswahl_tree_template.h"

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
            {563, canvas, L"", 0, 0, 16, 169},
            {18000, tree, L"", 22, 6, 138, 137},
            {1, defaultButton, L"OK", 56, 149, 50, 14},
            {2, button, L"Annulla", 110, 149, 50, 14},
        },
    };
    return vorlage;
}
