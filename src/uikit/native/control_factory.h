#pragma once

#include "uikit/dialog_template.h"

#include <QWidget>

/// Makes the widget for a control of a template, with caption, styles and tooltip but neither
/// place nor events.
QWidget* MakeControl(const ControlTemplate& control, QWidget& parent);
