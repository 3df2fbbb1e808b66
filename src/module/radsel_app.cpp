#include "module/radsel_app.h"

#include "module/font_occ_manager.h"
#include "uikit/application.h"

namespace {

constexpr int kHighScreen = 801;

} // namespace

CRADSELApp theApp;

void CRADSELApp::InitInstance()
{
    if (GetPrimaryScreenHeight() >= kHighScreen) {
        EnableControlContainer(std::make_unique<CFontOccManager>());
    }
    CWinApp::InitInstance();
}
