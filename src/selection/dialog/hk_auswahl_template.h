#pragma once

#include "uikit/dialog_template.h"

/// The radiator selection dialog as data.
const DialogTemplate& HKAuswahlTemplate();
