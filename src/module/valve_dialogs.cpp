#include "frame/entry_points.h"

#include "connection/dialog/anschluss_dialog.h"
#include "frame/ventil_kv.h"
#include "module/silent/host_check.h"
#include "module/silent/resource_context.h"
#include "valve/dialog/ventil_dialog.h"

bool ShowVentDlg(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilVorlauf,
                 VDI3805_VENTIL_KV& ventilRuecklauf, bool& gruppenWaehlbar, bool& ventile,
                 bool& typ, bool& fanCoil, TGA_LIST* heizkoerper, CDrawer* drawer)
{
    const CResourceContext context;
    return HostFits() &&
           ZeigeAnschlussDialog(anschluss, ventilVorlauf, ventilRuecklauf, gruppenWaehlbar, ventile,
                                typ, fanCoil, heizkoerper, drawer);
}

bool ShowVentVDI3805Dlg(const CString& ventilNr, const CString& hersteller,
                        VDI3805_VENTIL_KV& ventil)
{
    const CResourceContext context;
    return HostFits() && ZeigeVentilDialog(ventilNr, hersteller, ventil);
}
