#pragma once

#include <QFont>
#include <QSize>

/// The font of dialogs: the templates' face, in the size of the system's font but never smaller
/// than the templates'.
QFont GetDialogFont();

/// Average width and height of the characters of a font, the base of dialog units.
QSize GetDialogBaseUnits(const QFont& font);
