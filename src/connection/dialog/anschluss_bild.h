#pragma once

#include "frame/conn_values.h"
#include "platform/geometry.h"

class CWnd;

/// Draws the connection sketch anew on a canvas: the outline `front` of the radiator's front view,
/// and for each of the two points a marker and an arrow in the direction of the water, red for the
/// flow and blue for the return.
void ZeichneAnschlussBild(CWnd rahmen, const CRect& front, const ConnValues& werte);
