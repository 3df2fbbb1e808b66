#pragma once

#include "frame/ventil_kv.h"
#include "platform/array.h"
#include "valve/ventil_nodes.h"

#include <vector>

/// Fills `ventil` from an article and its data set: nominal data and the kv table in its final
/// order. `daten` is the "700" node whose number is the article's ident group 15. Key and names of
/// `ventil` are left alone.
///
/// A data set that is the last node of its list leaves the tables and VentilTyp as they stand, with
/// AnzahlKv 0; a kind code above 11 leaves the tables zero. When the table is full at 50 rows,
/// repeated presettings not counted, the message "MAXKV" is shown. A line that lacks a required
/// field raises CInvalidArgException, which tells the line and the field, with `ventil` filled as
/// far as it came.
void BewerteVentil(const VENT_VDI3805_ARTIKEL& artikel, const VENT_VDI3805_DATEN& daten,
                   VDI3805_VENTIL_KV& ventil);

/// The data set of a group that an article refers to; null if the group has none of that number.
VENT_VDI3805_DATEN* SucheDatensatz(const VENT_VDI3805_GRUPPE& gruppe,
                                   const VENT_VDI3805_ARTIKEL& artikel);

/// True for an article of a one-pipe valve, whose kv table tells of its bypass too.
bool HatBypass(const VENT_VDI3805_ARTIKEL& artikel);

/// Head line of the kv list of a valve with or without bypass.
CString KvKopfzeile(bool bypass);

/// The rows of a valve's kv table as texts under that head line.
CStringArray KvZeilen(const VDI3805_VENTIL_KV& ventil, bool bypass);

/// Where the columns of those rows end, in characters.
std::vector<int> KvSpaltenEnden(bool bypass);

/// Actuation, body form and material of an article, each "..." where the group has no such text.
struct VentilTexte
{
    CString Antrieb;
    CString Bauform;
    CString Werkstoff;
};
VentilTexte SucheTexte(const VENT_VDI3805_GRUPPE& gruppe, const VENT_VDI3805_ARTIKEL& artikel);
