#include "valve/dialog/ventil_dialog.h"

#include "valve/dialog/vent_vdi_dlg.h"

bool ZeigeVentilDialog(const CString& ventilNr, const CString& hersteller,
                       VDI3805_VENTIL_KV& ventil)
{
    CVentVdiDlg dialog;
    if (!ventilNr.empty() && !hersteller.empty()) {
        dialog.SetzeVorgabe(ventilNr, hersteller);
    }
    if (dialog.DoModal() != kIdOk) {
        return false;
    }
    dialog.HoleErgebnis(ventil);
    return true;
}
