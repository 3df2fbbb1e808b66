#pragma once

#include "uikit/dialog.h"

#include <QWidget>

#include <functional>

/// Gives a control the colours that its dialog chooses for its kind.
void ApplyControlColors(QWidget& widget, const std::function<ControlColors(ColorKind)>& choose);
