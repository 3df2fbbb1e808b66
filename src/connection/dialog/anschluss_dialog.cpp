#include "connection/dialog/anschluss_dialog.h"

#include "connection/dialog/vent_dlg.h"
#include "host/host_prefs.h"
#include "valve/ventil_abruf.h"

bool ZeigeAnschlussDialog(ConnValues& anschluss, VDI3805_VENTIL_KV& ventilVorlauf,
                          VDI3805_VENTIL_KV& ventilRuecklauf, bool& gruppenWaehlbar, bool& ventile,
                          bool& typ, bool& fanCoil, TGA_LIST* heizkoerper, CDrawer* drawer)
{
    bool superUser = false;
    lmGetGlobalSuperUser(superUser);
    HoleVentilDaten(ventilVorlauf, ventilRuecklauf);
    CVentDlg dialog({.anschluss = anschluss,
                     .ventilAN = ventilVorlauf,
                     .ventilRI = ventilRuecklauf,
                     .liste = heizkoerper,
                     .drawer = drawer,
                     .superUser = superUser,
                     .gruppenWaehlbar = gruppenWaehlbar,
                     .fanCoil = fanCoil});
    if (dialog.DoModal() != kIdOk) {
        return false;
    }
    dialog.HoleErgebnis(anschluss, ventilVorlauf, ventilRuecklauf, ventile, typ, fanCoil);
    return true;
}
