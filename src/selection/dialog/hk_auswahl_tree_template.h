#pragma once

#include "uikit/dialog_template.h"

/// Controls of the dialog that picks a product.
enum AuswahlTreeControl : int
{
    idProduktBaum = 18000,
};

/// The dialog that picks a radiator product from the catalogue tree, as data.
const DialogTemplate& HKAuswahlTreeTemplate();
