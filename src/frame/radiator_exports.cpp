#include "frame/entry_points.h"

#include "frame/resource_context.h"
#include "radiator/hk_vdi3805.h"
#include "radiator/size_queries.h"

namespace {

constexpr int kCancelled = -2;
constexpr int kTreeCancelled = -1;

} // namespace

int HeizkoerperauswahlVDI3805(CDrawer* /*drawer*/, HK_DATEN_VDI3805_UEBERGABE* uebergabe,
                              CString& /*layer*/, int& /*layerColor*/, bool showDialog,
                              bool /*warnAndWiden*/)
{
    const CResourceContext context;
    CHKVdi3805 katalog(uebergabe);
    katalog.SetLeistungFilter(0);
    katalog.Filtern();
    if (showDialog) {
        katalog.BesteAuswahl();
        return kCancelled;
    }
    return katalog.BesteAuswahlMinLeistung(uebergabe);
}

int HeizkoerperauswahlVDI3805Tree(HK_DATEN_VDI3805_UEBERGABE* uebergabe)
{
    const CResourceContext context;
    CHKVdi3805 katalog(uebergabe);
    katalog.Filtern();
    return kTreeCancelled;
}

void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, OCArray<double>& hoehen,
                   OCArray<double>& tiefen)
{
    const CResourceContext context;
    LeseMasse(uebergabe, hoehen, tiefen);
}

void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, short* hoehen, short* tiefen,
                   short* laengen, double* inhalte, int capacity)
{
    const CResourceContext context;
    LeseMasse(uebergabe, hoehen, tiefen, laengen, inhalte, capacity);
}

double HKGetMinTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    const CResourceContext context;
    return MinTiefe(uebergabe);
}

double HKGetMaxTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    const CResourceContext context;
    return MaxTiefe(uebergabe);
}

double GetHK_Inhalt(HK_DATEN_VDI3805_UEBERGABE& uebergabe, double hoehe, double tiefe,
                    double laenge)
{
    const CResourceContext context;
    return Inhalt(uebergabe, hoehe, tiefe, laenge);
}

void DummyCall() {}
