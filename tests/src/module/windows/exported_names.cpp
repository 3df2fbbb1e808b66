// Stands for the module where its windows cannot be built: the functions that it offers, by their
// headers, without what they do.

#include "frame/conn_values.h"
#include "frame/entry_points.h"
#include "frame/ventil_kv.h"

int HeizkoerperauswahlVDI3805(CDrawer* /*drawer*/, HK_DATEN_VDI3805_UEBERGABE* /*uebergabe*/,
                              CString& /*layer*/, int& /*layerColor*/, bool /*showDialog*/,
                              bool /*warnAndWiden*/)
{
    return -1;
}

int HeizkoerperauswahlVDI3805Tree(HK_DATEN_VDI3805_UEBERGABE* /*uebergabe*/)
{
    return -1;
}

void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& /*uebergabe*/, OCArray<double>& /*hoehen*/,
                   OCArray<double>& /*tiefen*/)
{
}

void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& /*uebergabe*/, short* /*hoehen*/, short* /*tiefen*/,
                   short* /*laengen*/, double* /*inhalte*/, int /*capacity*/)
{
}

double HKGetMinTiefe(HK_DATEN_VDI3805_UEBERGABE& /*uebergabe*/)
{
    return -1.0;
}

double HKGetMaxTiefe(HK_DATEN_VDI3805_UEBERGABE& /*uebergabe*/)
{
    return -1.0;
}

double GetHK_Inhalt(HK_DATEN_VDI3805_UEBERGABE& /*uebergabe*/, double /*hoehe*/, double /*tiefe*/,
                    double /*laenge*/)
{
    return 0.0;
}

bool ShowVentDlg(ConnValues& /*anschluss*/, VDI3805_VENTIL_KV& /*ventilVorlauf*/,
                 VDI3805_VENTIL_KV& /*ventilRuecklauf*/, bool& /*gruppenWaehlbar*/,
                 bool& /*ventile*/, bool& /*typ*/, bool& /*fanCoil*/, TGA_LIST* /*heizkoerper*/,
                 CDrawer* /*drawer*/)
{
    return false;
}

bool ShowVentVDI3805Dlg(const CString& /*ventilNr*/, const CString& /*hersteller*/,
                        VDI3805_VENTIL_KV& /*ventil*/)
{
    return false;
}

void VDI3805GetVentil(const CString& /*hersteller1*/, const CString& /*ventilNr1*/,
                      const CString& /*hersteller2*/, const CString& /*ventilNr2*/,
                      VDI3805_VENTIL_KV& /*ventil1*/, VDI3805_VENTIL_KV& /*ventil2*/)
{
}

bool VDI3805GetVentilDaten(VDI3805_VENTIL_KV& /*ventil1*/, VDI3805_VENTIL_KV& /*ventil2*/)
{
    return false;
}

void DummyCall() {}

CLumoError& CLumoError::operator=(const CLumoError& other) = default;
