#include "uikit/win_app.h"

#include "platform/message.h"
#include "uikit/application.h"

#include <utility>

namespace {

CWinApp* g_current = nullptr;

} // namespace

CWinApp::CWinApp()
{
    if (MessageHandler present = SetMessageHandler(ShowMessageBox)) {
        SetMessageHandler(std::move(present));
    }
}

CWinApp::~CWinApp() = default;

CWinApp* CWinApp::Current()
{
    return g_current;
}

CWinApp* CWinApp::MakeCurrent(CWinApp* app)
{
    return std::exchange(g_current, app);
}

void CWinApp::Start()
{
    if (!std::exchange(m_started, true)) {
        InitInstance();
    }
}

void CWinApp::EnableControlContainer(std::unique_ptr<COccManager> manager)
{
    m_manager = std::move(manager);
}

void CWinApp::InitInstance() {}
