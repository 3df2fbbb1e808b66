#pragma once

#include "uikit/dialog_template.h"

#include <QFont>
#include <QSize>

/// The font of the dialog that opened last of those that are open; without any, that of templates.
QFont GetDialogFont();

/// Makes a font that of dialogs while it lives. Scopes nest.
class CDialogFontScope
{
public:
    explicit CDialogFontScope(const DialogFont& font);
    ~CDialogFontScope();
    CDialogFontScope(const CDialogFontScope&) = delete;
    CDialogFontScope& operator=(const CDialogFontScope&) = delete;

private:
    DialogFont m_previous;
};

/// Average width and height of the characters of a font, the base of dialog units.
QSize GetDialogBaseUnits(const QFont& font);
