#include "module/silent/module_windows.h"

namespace {

CModuleWindows* g_windows = nullptr;

} // namespace

CModuleWindows::CModuleWindows()
{
    g_windows = this;
}

CModuleWindows::~CModuleWindows()
{
    g_windows = nullptr;
}

CModuleWindows* GetModuleWindows()
{
    return g_windows;
}
