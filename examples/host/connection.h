#pragma once

#include "frame/conn_values.h"
#include "frame/ventil_kv.h"

class CDrawer;
class CDrawnRadiator;

/// How a radiator is connected, and with which valves.
struct CConnection
{
    ConnValues points;
    VDI3805_VENTIL_KV flowValve;
    VDI3805_VENTIL_KV returnValve;
};

/// The connection that the radiator's attributes tell; for one that has none yet, both pipes at the
/// left end.
ConnValues ReadConnection(const CDrawnRadiator& radiator);

/// Writes it into the attributes.
void WriteConnection(CDrawnRadiator& radiator, const ConnValues& points);

/// Lets the user edit the connection of a radiator in the drawing; true on OK, and then the
/// radiator and `connection` hold what he chose. Otherwise both are as before.
bool EditConnection(CDrawnRadiator& radiator, CConnection& connection, CDrawer& drawing);
