#pragma once

#include "platform/text.h"

class CDrawer;
class CHKVdi3805;
class CWinApp;

/// What the module's windows do for its calls. The whole module has one object of this kind, from
/// its loading on; a program that binds the calls without windows has none.
class CModuleWindows
{
public:
    CModuleWindows(const CModuleWindows&) = delete;
    CModuleWindows& operator=(const CModuleWindows&) = delete;

    /// Makes the module's application object the current one and gives the one before.
    virtual CWinApp* Enter() = 0;
    virtual void Leave(CWinApp* previous) = 0;

    /// Lets the user choose among the rows of the catalogue, which is filtered, and gives what
    /// HeizkoerperauswahlVDI3805() then answers.
    virtual int ShowSelection(CHKVdi3805& katalog, CDrawer* drawer, CString& layer, int& layerColor,
                              bool warnAndWiden) = 0;

protected:
    /// From its making on the object is the one that calls ask, to its end.
    CModuleWindows();
    ~CModuleWindows();
};

/// Null where no windows are bound in.
CModuleWindows* GetModuleWindows();
