#include "host/host_prefs.h"

#include "host_defaults/answers.h"

namespace host_defaults {

CString GetHKDir(bool /*projectCopy*/)
{
    return {};
}

CString GetVEDir(bool /*projectCopy*/)
{
    return {};
}

void lmGetDimension2(int& code)
{
    code = 1;
}

int lmGetDimensionUsr()
{
    return 1;
}

void lmGetHKLayer(CString& layer)
{
    layer = L"HEIZ_HK_$d";
}

void lmGetHKLayerColor(int& farbe)
{
    farbe = 1;
}

void lmGetAutoLayerManagement(bool& automatisch, bool vorgabe)
{
    automatisch = vorgabe;
}

bool lmGetDWGDefPath(const LumoDWGDefsNames& /*name*/, CString& /*path*/)
{
    return false;
}

bool lmGetHKBlock(CString& /*block*/)
{
    return false;
}

void lmSetHKBlock(const CString& /*block*/) {}

bool lmGetGlobalSuperUser(bool& superUser)
{
    superUser = false;
    return true;
}

CObject* ReadDefFile(const CRuntimeClass* /*klasse*/, const CString& /*name*/)
{
    return nullptr;
}

bool WriteDefFile(CObject* /*object*/, const CRuntimeClass* /*klasse*/, const CString& /*name*/)
{
    return false;
}

VDI6030START* ReadDefFile_VDI6030START(bool /*projectCopy*/)
{
    return nullptr;
}

bool WriteDefFile_VDI6030START(VDI6030START* /*start*/, bool /*projectCopy*/)
{
    return false;
}

bool lmGetAllowLumoSkin(bool& allow)
{
    allow = false;
    return true;
}

bool lmGetLumoSkinColor(LumoSkinType /*type*/, unsigned long& /*color*/)
{
    return false;
}

bool lmGetAllowEnterAsTab(bool& allow)
{
    allow = false;
    return true;
}

bool lmGetCurrentWinposFile(CString& name)
{
    name = L"winpos.txt";
    return true;
}

bool lmGetUseVistaBanner(bool& use)
{
    use = false;
    return true;
}

bool lmGetProductLongName(CString& name)
{
    name = L"radsel";
    return true;
}

} // namespace host_defaults

CString GetHKDir(bool projectCopy)
{
    return host_defaults::GetHKDir(projectCopy);
}

CString GetVEDir(bool projectCopy)
{
    return host_defaults::GetVEDir(projectCopy);
}

void lmGetDimension2(int& code)
{
    host_defaults::lmGetDimension2(code);
}

int lmGetDimensionUsr()
{
    return host_defaults::lmGetDimensionUsr();
}

void lmGetHKLayer(CString& layer)
{
    host_defaults::lmGetHKLayer(layer);
}

void lmGetHKLayerColor(int& farbe)
{
    host_defaults::lmGetHKLayerColor(farbe);
}

void lmGetAutoLayerManagement(bool& automatisch, bool vorgabe)
{
    host_defaults::lmGetAutoLayerManagement(automatisch, vorgabe);
}

bool lmGetDWGDefPath(const LumoDWGDefsNames& name, CString& path)
{
    return host_defaults::lmGetDWGDefPath(name, path);
}

bool lmGetHKBlock(CString& block)
{
    return host_defaults::lmGetHKBlock(block);
}

void lmSetHKBlock(const CString& block)
{
    host_defaults::lmSetHKBlock(block);
}

bool lmGetGlobalSuperUser(bool& superUser)
{
    return host_defaults::lmGetGlobalSuperUser(superUser);
}

CObject* ReadDefFile(const CRuntimeClass* klasse, const CString& name)
{
    return host_defaults::ReadDefFile(klasse, name);
}

bool WriteDefFile(CObject* object, const CRuntimeClass* klasse, const CString& name)
{
    return host_defaults::WriteDefFile(object, klasse, name);
}

VDI6030START* ReadDefFile_VDI6030START(bool projectCopy)
{
    return host_defaults::ReadDefFile_VDI6030START(projectCopy);
}

bool WriteDefFile_VDI6030START(VDI6030START* start, bool projectCopy)
{
    return host_defaults::WriteDefFile_VDI6030START(start, projectCopy);
}

bool lmGetAllowLumoSkin(bool& allow)
{
    return host_defaults::lmGetAllowLumoSkin(allow);
}

bool lmGetLumoSkinColor(LumoSkinType type, unsigned long& color)
{
    return host_defaults::lmGetLumoSkinColor(type, color);
}

bool lmGetAllowEnterAsTab(bool& allow)
{
    return host_defaults::lmGetAllowEnterAsTab(allow);
}

bool lmGetCurrentWinposFile(CString& name)
{
    return host_defaults::lmGetCurrentWinposFile(name);
}

bool lmGetUseVistaBanner(bool& use)
{
    return host_defaults::lmGetUseVistaBanner(use);
}

bool lmGetProductLongName(CString& name)
{
    return host_defaults::lmGetProductLongName(name);
}
