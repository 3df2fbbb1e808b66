#pragma once

#include "frame/conn_values.h"

class CWnd;

/// Draws the connection sketch anew on a canvas: a front view of the radiator, and for each of the
/// two points a marker and an arrow in the direction of the water, red for the flow and blue for
/// the return.
void ZeichneAnschlussBild(CWnd rahmen, const ConnValues& werte);
