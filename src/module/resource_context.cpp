#include "module/resource_context.h"

#include "module/radsel_app.h"

CResourceContext::CResourceContext() : m_previous(CWinApp::MakeCurrent(&theApp)) {}

CResourceContext::~CResourceContext()
{
    CWinApp::MakeCurrent(m_previous);
}
