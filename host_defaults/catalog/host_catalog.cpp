#include "host/host_catalog.h"

#include "host_defaults/answers.h"

namespace host_defaults {

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    return nullptr;
}

void ShowPDF(unsigned /*dialogId*/, int /*art*/) {}

} // namespace host_defaults

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    return host_defaults::ReadHKDaten();
}

HK_VDI3805_HERSTELLER* FindHersteller(const CString& name)
{
    return host_defaults::FindHersteller(name);
}

HK_VDI3805_ART* FindArt(HK_VDI3805_HERSTELLER* hersteller, const CString& name)
{
    return host_defaults::FindArt(hersteller, name);
}

HK_VDI3805_PRODUKT* FindProdukt(HK_VDI3805_ART* art, const CString& name)
{
    return host_defaults::FindProdukt(art, name);
}

int ReadVdiFile(const CString& hersteller, HK_VDI3805_ART** art, double leistungEN442)
{
    return host_defaults::ReadVdiFile(hersteller, art, leistungEN442);
}

void ShowPDF(unsigned dialogId, int art)
{
    host_defaults::ShowPDF(dialogId, art);
}
