#pragma once

#include "platform/text.h"
#include "valve/ventil_nodes.h"

/// A place in a catalogue: the nodes of its levels, null where the level is not reached.
struct VentilStelle
{
    VENT_VDI3805_HAUPTGRUPPE* Hauptgruppe = nullptr;
    VENT_VDI3805_GRUPPE* Gruppe = nullptr;
    VENT_VDI3805_ARTIKEL* Artikel = nullptr;
};

/// First node of the whole catalogue with exactly this text, in file order, with the nodes above
/// it: a main group or group by its name, an article by the name that is shown. All null if there
/// is none.
VentilStelle SucheHauptgruppe(VENT_VDI3805_HAUPTGRUPPE* erste, const CString& name);
VentilStelle SucheGruppe(VENT_VDI3805_HAUPTGRUPPE* erste, const CString& name);
VentilStelle SucheArtikel(VENT_VDI3805_HAUPTGRUPPE* erste, const CString& bezeichnung);
