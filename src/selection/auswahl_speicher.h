#pragma once

#include "frame/handover.h"
#include "platform/text.h"

/// What the radiator selection keeps from one use to the next, in the user's records at the host.

/// Gives a selection that came without a layer the layer and colour of the last one; if that had
/// none either, the host's default layer for the floor of the room, and its colour. True if layer
/// and colour were set: a layer that the caller gave wins, and so does an empty one where no
/// selection has been stored yet.
bool LayerVorgabe(const CString& raumname, CString& layer, int& farbe);

/// Keeps the layer for the next selection.
void LayerMerken(const CString& layer, int farbe);

/// Keeps the catalogue position of the hand-over and the heating system for the next selection,
/// temperatures cut to whole degrees. What else is in the record stays.
void AuswahlMerken(const HK_DATEN_VDI3805_UEBERGABE& uebergabe, const CString& systemName,
                   double vorlauf, double ruecklauf);
