#pragma once

#include "connection/anschluss_punkt.h"
#include "frame/ventil_kv.h"
#include "platform/text.h"

/// The two valves of a connection while they are chosen.
struct CVentilPaar
{
    VDI3805_VENTIL_KV m_VentilAN;
    VDI3805_VENTIL_KV m_VentilRI;
    /// A copy of that valve to the other side is pending.
    bool m_bUebernehmeAN = false;
    bool m_bUebernehmeRI = false;
    /// What shows as nominal diameter; starts with the usual one.
    CString m_TextDnAN = L"15";
    CString m_TextDnRI = L"15";
};

/// What belongs to the valve of one point.
struct CVentilSeite
{
    VDI3805_VENTIL_KV& ventil;
    CString& textDn;
    bool& uebernehmen;
};

/// The valve of the return point, or of the flow point for any other value.
CVentilSeite SeiteVon(CVentilPaar& paar, Punkt punkt);

Punkt Gegenueber(Punkt punkt);

/// Shows the nominal diameters of the valves that have one. The text of any other stays: it may
/// still tell that of a valve taken away.
void ZeigeNennweiten(CVentilPaar& paar);

/// Copies the valve of a point to the other one if that is pending, its nominal diameter with it,
/// also one of 0. False if it is not pending.
bool Uebernehme(CVentilPaar& paar, Punkt von);

/// At OK a valve without nominal diameter gets the one that shows, even where there is no valve.
void ErgaenzeNennweiten(CVentilPaar& paar);
