#pragma once

#include "uikit/dialog_template.h"

/// The valve selection dialog as data.
const DialogTemplate& VentVdiTemplate();
