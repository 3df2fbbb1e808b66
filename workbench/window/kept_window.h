#pragma once

#include "platform/text.h"

class QMainWindow;

namespace workbench {

/// What the window has as the user left it, from one run to the next. It lies in his settings;
/// where those cannot be written nothing is kept.

/// Gives the window the place, the size and the docks that were kept last, as far as the screen has
/// room for them. Without any it stays as it is.
void RestoreWindow(QMainWindow& window);
void KeepWindow(const QMainWindow& window);

/// The folder in which the user chose a file last; empty if he never did or if it has gone.
CString LastFolder();
/// `path` is that of the file chosen.
void KeepFolderOf(const CString& path);

} // namespace workbench
