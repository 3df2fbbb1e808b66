#include "module/silent/resource_context.h"

#include "module/silent/module_windows.h"

CResourceContext::CResourceContext()
{
    if (CModuleWindows* const windows = GetModuleWindows()) {
        m_previous = windows->Enter();
    }
}

CResourceContext::~CResourceContext()
{
    if (CModuleWindows* const windows = GetModuleWindows()) {
        windows->Leave(m_previous);
    }
}
