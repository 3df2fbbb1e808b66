#pragma once

#include "uikit/occ_manager.h"

#include <memory>

/// The application object of a library or program that shows dialogs. Several may live in a
/// process; the current one decides what dialogs are created from.
class CWinApp
{
public:
    /// From now on messages come as message boxes wherever the process has windows when they are
    /// shown, unless a handler of them is in force already.
    CWinApp();
    virtual ~CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    /// The one whose dialogs are at work; null outside of all.
    static CWinApp* Current();
    /// Makes `app` the current one, null for none, and returns the one before.
    static CWinApp* MakeCurrent(CWinApp* app);

    /// Runs InitInstance() at the first call. A library is loaded before its host has windows, and
    /// only with them is there a screen to ask; so this is called by the first dialog that opens
    /// while the object is the current one.
    void Start();

    /// Makes dialogs ask the manager from now on before they are created.
    void EnableControlContainer(std::unique_ptr<COccManager> manager);
    /// Null if none has been enabled.
    COccManager* GetOccManager() const { return m_manager.get(); }

protected:
    /// The start-up of the application, once windows can be shown. There is nothing to do here.
    virtual void InitInstance();

private:
    std::unique_ptr<COccManager> m_manager;
    bool m_started = false;
};
