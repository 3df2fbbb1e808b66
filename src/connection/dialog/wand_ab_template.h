#pragma once

#include "uikit/dialog_template.h"

/// The dialog for the distances of radiators from wall and floor, as data.
const DialogTemplate& WandAbTemplate();
