#pragma once

class CWinApp;

/// Makes the module's application object the current one for the life of the object, so that
/// dialogs are created as it says, and puts back what was current before, on every way out. Every
/// export that opens a dialog or works on a catalogue holds one. Scopes nest.
class CResourceContext
{
public:
    CResourceContext();
    ~CResourceContext();

    CResourceContext(const CResourceContext&) = delete;
    CResourceContext& operator=(const CResourceContext&) = delete;

private:
    CWinApp* m_previous;
};
