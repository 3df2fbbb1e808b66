#pragma once

#include "uikit/dialog.h"

#include <functional>

/// Gets the toolkit and the dialogs' font ready, for programs that open dialogs without a host.
void PrepareDialogs();

/// Calls what opens a modal dialog, runs the work on it as soon as it stands there, and cancels it.
void RunDialog(const std::function<void()>& open, const std::function<void(CDialog&)>& work);
