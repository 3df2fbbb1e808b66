#pragma once

#include "common/auswahl_liste.h"
#include "frame/conn_values.h"

class CDrawer;

/// Fills the lists of valve graphics of flow and return with the blocks of the host's drawing of
/// valves and selects in each the graphic of `anschluss`. The place of a graphic counts in the
/// order of the drawing, though the lists sort themselves, so that the one that shows may be
/// another; it is an offer only, and a graphic is taken when the user chooses it.
///
/// In the flow's list the block of the current radiator wins, or the first entry if there is none.
void FuelleGrafikListen(CDrawer& drawer, const ConnValues& anschluss, CAuswahlListe& vorlauf,
                        CAuswahlListe& ruecklauf);
