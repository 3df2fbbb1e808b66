#pragma once

#include "uikit/dialog_template.h"

#include <QWidget>

/// Width that an average character must count for so that the caption fits into the control, whose
/// widget has the font and size of its dialog; 0 if it fits already.
double BaseWidthForCaption(const ControlTemplate& control, const QWidget& widget);
