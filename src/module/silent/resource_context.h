#pragma once

#include "module/silent/call_check.h"

class CWinApp;

/// Makes the module's application object the current one for the life of the object, so that
/// dialogs are created as it says, and puts back what was current before, on every way out. Every
/// export that opens a dialog or works on a catalogue holds one. Scopes nest. Without windows there
/// is no such object, and nothing to be put back.
///
/// In a build with checks a scope that begins on another thread than those that are open raises
/// std::logic_error.
class CResourceContext
{
public:
    CResourceContext();
    ~CResourceContext();

    CResourceContext(const CResourceContext&) = delete;
    CResourceContext& operator=(const CResourceContext&) = delete;

private:
    CCallCheck m_check;
    CWinApp* m_previous = nullptr;
};
