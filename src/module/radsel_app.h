#pragma once

#include "uikit/win_app.h"

/// The module's application object. There is one, from the loading of the library on.
class CRADSELApp : public CWinApp
{
protected:
    /// On a screen that has room for it dialogs take the system's message font. On a lower one they
    /// keep the font of their templates, with which the largest of them fits 1024 x 768.
    void InitInstance() override;
};

extern CRADSELApp theApp;
