#pragma once

#include "platform/export.h"

#include <QIcon>

class QDialog;
class QDialogButtonBox;
class QWidget;

namespace host_defaults {

/// What the host's dialogs have in common.

/// The window that a new modal dialog belongs above, null if there is none.
HOST_API QWidget* ParentForDialog();

/// The buttons "OK" and "Annulla", owned by the dialog and wired to its accept() and reject().
HOST_API QDialogButtonBox* AddButtons(QDialog& dialog);

/// A square of a colour index with a thin edge, for lists and buttons.
HOST_API QIcon ColorIcon(int index, int side);

} // namespace host_defaults
