#pragma once

#include "uikit/dialog_template.h"

/// Controls of the dialog for the distances.
enum WandAbControl : int
{
    idAbstandWand = 1529,
    idEinheitWand = 7020,
    idAbstandBoden = 1530,
    idEinheitBoden = 7023,
};

/// The dialog for the distances of radiators from wall and floor, as data.
const DialogTemplate& WandAbTemplate();
