#pragma once

#include "frame/conn_values.h"

class CDrawer;
struct TGA_LIST;

/// Shows the connection points of the list's radiators in the drawing, in place of those shown
/// before, and writes the texts of both points to the radiators' attributes "H_VL_PUNKT" and
/// "H_RL_PUNKT", where they stay. A missing attribute is appended, made with `new`.
void ZeichneAnschlussVorschau(TGA_LIST* liste, CDrawer& drawer, const ConnValues& werte);
