#pragma once

class CDialog;

/// Tells the program's observer, if there is one, of a dialog that is shown.
void TellDialogObserver(CDialog& dialog);
