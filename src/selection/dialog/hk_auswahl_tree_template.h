#pragma once

#include "uikit/dialog_template.h"

/// The dialog that picks a radiator product from the catalogue tree, as data.
const DialogTemplate& HKAuswahlTreeTemplate();
