#include "valve/ventil_auswahl.h"

VentilStelle SucheHauptgruppe(VENT_VDI3805_HAUPTGRUPPE* erste, const CString& name)
{
    for (auto* haupt = erste; haupt != nullptr; haupt = haupt->Next) {
        if (haupt->Name == name) {
            return {haupt};
        }
    }
    return {};
}

VentilStelle SucheGruppe(VENT_VDI3805_HAUPTGRUPPE* erste, const CString& name)
{
    for (auto* haupt = erste; haupt != nullptr; haupt = haupt->Next) {
        for (auto* gruppe = haupt->Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
            if (gruppe->Name == name) {
                return {haupt, gruppe};
            }
        }
    }
    return {};
}

VentilStelle SucheArtikel(VENT_VDI3805_HAUPTGRUPPE* erste, const CString& bezeichnung)
{
    for (auto* haupt = erste; haupt != nullptr; haupt = haupt->Next) {
        for (auto* gruppe = haupt->Gruppen; gruppe != nullptr; gruppe = gruppe->Next) {
            for (VENT_VDI3805_ARTIKEL* artikel = gruppe->Artikel; artikel != nullptr;
                 artikel = artikel->Next) {
                if (artikel->Bezeichnung == bezeichnung) {
                    return {haupt, gruppe, artikel};
                }
            }
        }
    }
    return {};
}
