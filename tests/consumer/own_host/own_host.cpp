// A host of its own, as a CAD program would bring it: all that the module asks, with a catalogue of
// one radiator. What it is built as tells whether it names itself:
//   OWN_HOST_NAME      its identity; without it the host is silent
//   OWN_HOST_VERSION   the interface that it says it was made for, where that is not the headers'
//   ONLY_CATALOGUE     leaves all but the catalogue and one record to the defaults or another host

#include "frame/conn_values.h"
#include "frame/handover.h"
#include "frame/hkauswahl_uebergabe.h"
#include "frame/vdi6030_start.h"
#include "frame/ventil_kv.h"
#include "host/host_base.h"
#include "host/host_catalog.h"
#include "host/host_fittings.h"
#include "host/host_identity.h"
#include "host/host_prefs.h"
#include "host/host_prompts.h"

#if defined(OWN_HOST_VERSION)
extern "C" HOST_API const CHostIdentity* RadselHostIdentity()
{
    static const CHostIdentity identity = {OWN_HOST_VERSION, OWN_HOST_NAME};
    return &identity;
}
#elif defined(OWN_HOST_NAME)
RADSEL_HOST_IDENTITY(OWN_HOST_NAME)
#endif

namespace {

struct CCatalogue
{
    CCatalogue()
    {
        row.Name = L"T1";
        row.Daten = {};
        row.Daten.Hoehe = 600;
        row.Daten.Tiefe = 100;
        row.Daten.Laenge = 1000;
        row.Daten.LeistungEN442 = 1000;
        row.Daten.Bauart = L'M';
        row.Daten.Exponent = 1.3;
        product.Name = L"Tipo 22";
        product.pTyp = &row;
        kind.Name = L"Radiatori a piastra compatti";
        kind.pProdukt = &product;
        maker.Name = L"Valmorena";
        maker.pArt = &kind;
    }

    HK_VDI3805_TYP row;
    HK_VDI3805_PRODUKT product;
    HK_VDI3805_ART kind;
    HK_VDI3805_HERSTELLER maker;
};

CCatalogue& Catalogue()
{
    static CCatalogue catalogue;
    return catalogue;
}

} // namespace

HK_VDI3805_HERSTELLER* ReadHKDaten()
{
    return &Catalogue().maker;
}
HK_VDI3805_HERSTELLER* FindHersteller(const CString& name)
{
    return name == Catalogue().maker.Name ? &Catalogue().maker : nullptr;
}
HK_VDI3805_ART* FindArt(HK_VDI3805_HERSTELLER* maker, const CString& name)
{
    return maker != nullptr && name == maker->pArt->Name ? maker->pArt : nullptr;
}
HK_VDI3805_PRODUKT* FindProdukt(HK_VDI3805_ART* kind, const CString& name)
{
    return kind != nullptr && name == kind->pProdukt->Name ? kind->pProdukt : nullptr;
}
int ReadVdiFile(const CString&, HK_VDI3805_ART**, double)
{
    return 1;
}

#define RECORD(name)                                                                               \
    name::name(const name&) = default;                                                             \
    name& name::operator=(const name&) = default;                                                  \
    void name::Serialize(CArchive&) {}
#define OBJECT(name)                                                                               \
    RECORD(name)                                                                                   \
    name::~name() = default;                                                                       \
    const CRuntimeClass& name::GetThisClass()                                                      \
    {                                                                                              \
        static const CRuntimeClass description{#name, 1, &CObject::GetThisClass(), nullptr};       \
        return description;                                                                        \
    }                                                                                              \
    const CRuntimeClass& name::GetRuntimeClass() const                                             \
    {                                                                                              \
        return GetThisClass();                                                                     \
    }

// A record too, with the table of its virtual functions.
OBJECT(HKAUSWAHL_UEBERGABE)
HKAUSWAHL_UEBERGABE::HKAUSWAHL_UEBERGABE() = default;

#ifndef ONLY_CATALOGUE

void ShowPDF(unsigned, int) {}
CString CRoomTools::GetFloorName(const CString&)
{
    return {};
}
CBitmap CImageLoader::LoadLumoIcon(int, int, int) const
{
    return {};
}

CString GetHKDir(bool)
{
    return {};
}
CString GetVEDir(bool)
{
    return {};
}
void lmGetDimension2(int& code)
{
    code = 1000;
}
int lmGetDimensionUsr()
{
    return 1000;
}
void lmGetHKLayer(CString&) {}
void lmGetHKLayerColor(int&) {}
void lmGetAutoLayerManagement(bool&, bool) {}
bool lmGetDWGDefPath(const LumoDWGDefsNames&, CString&)
{
    return false;
}
bool lmGetHKBlock(CString&)
{
    return false;
}
void lmSetHKBlock(const CString&) {}
bool lmGetGlobalSuperUser(bool&)
{
    return false;
}
CObject* ReadDefFile(const CRuntimeClass*, const CString&)
{
    return nullptr;
}
bool WriteDefFile(CObject*, const CRuntimeClass*, const CString&)
{
    return false;
}
VDI6030START* ReadDefFile_VDI6030START(bool)
{
    return nullptr;
}
bool WriteDefFile_VDI6030START(VDI6030START*, bool)
{
    return false;
}
CSettingsCache::~CSettingsCache() = default;
CSettingsCache* lmGetCacheObject()
{
    return nullptr;
}
bool lmGetAllowLumoSkin(bool&)
{
    return true;
}
bool lmGetLumoSkinColor(LumoSkinType, unsigned long&)
{
    return false;
}
bool lmGetAllowEnterAsTab(bool&)
{
    return true;
}
bool lmGetCurrentWinposFile(CString&)
{
    return true;
}
bool lmGetUseVistaBanner(bool&)
{
    return true;
}
bool lmGetProductLongName(CString&)
{
    return true;
}

int lmGet_K_APUNKT_X(const CString&, double*, double*, double*, double&, double&, int&, double&)
{
    return 0;
}
void lmSet_K_APUNKT_X(CString&, const double*, const double*, const double*, double, double, int,
                      double)
{
}
int lmGet_K_APUNKT_BLOCK_Wc(ALIST*, LM_APUNKT*, LM_TRAFO*, TgaGewerk, const CString&)
{
    return 0;
}

bool ShowTransDlg(int&)
{
    return false;
}
bool ShowBigLayerDlg(CDrawer*, CString&, int&)
{
    return false;
}

bool configGetWorkPathServer(CString&)
{
    return false;
}
bool configGetWorkPathLocal(CString&)
{
    return false;
}
bool GetColorDlg(int&)
{
    return false;
}
COLORREF GetRGBFromColor(int)
{
    return 0;
}
int lmGetGewerkColor(TgaGewerk)
{
    return 0;
}

RECORD(HK_DATEN_VDI3805)
HK_DATEN_VDI3805::HK_DATEN_VDI3805()
    : Hoehe(0), Tiefe(0), Laenge(0), LeistungEN442(0), Leistung(0), Elemente(0), Bauart(L'M'),
      Exponent(1.3), Inhalt(0)
{
}
HK_DATEN_VDI3805::~HK_DATEN_VDI3805() = default;
RECORD(HK_DATEN_VDI3805_UEBERGABE)
HK_DATEN_VDI3805_UEBERGABE::HK_DATEN_VDI3805_UEBERGABE()
    : LeistungMin(-1), LeistungMax(-1), Leistung(0), Toleranz(0.1), LaengeMin(0), LaengeMax(0),
      HoeheMin(0), HoeheMax(0), TiefeMin(0), TiefeMax(0), Vorlauf(0), Ruecklauf(0),
      Raumtemperatur(0), Umrechnungsfaktor(1), RaumBedarf(0), RaumGedeckt(0), NeuLesen(0)
{
}
HK_DATEN_VDI3805_UEBERGABE::~HK_DATEN_VDI3805_UEBERGABE() = default;
RECORD(VDI3805_VENTIL_KV)
VDI3805_VENTIL_KV::VDI3805_VENTIL_KV() = default;
VDI3805_VENTIL_KV::~VDI3805_VENTIL_KV() = default;
void VDI3805_VENTIL_KV::Init() {}
RECORD(VDI6030START)
VDI6030START::VDI6030START() = default;
VDI6030START::~VDI6030START() = default;
OBJECT(HK_VDI3805_TYP)
HK_VDI3805_TYP::HK_VDI3805_TYP() : pNext(nullptr), pPrev(nullptr) {}
OBJECT(ConnValues)
ConnValues::ConnValues() = default;
LM_TRAFO::LM_TRAFO() = default;
LM_TRAFO::LM_TRAFO(const LM_TRAFO&) = default;
LM_TRAFO& LM_TRAFO::operator=(const LM_TRAFO&) = default;
LM_TRAFO::~LM_TRAFO() = default;

#endif
