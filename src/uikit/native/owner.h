#pragma once

class QWidget;

/// Puts a window without a parent above the window that SetOwnerWindow() has named, before it is
/// shown.
void PutAboveOwner(QWidget& window);
