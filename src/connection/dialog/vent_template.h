#pragma once

#include "uikit/dialog_template.h"

/// The valve and connection dialog as data, in its expanded state.
const DialogTemplate& VentTemplate();
