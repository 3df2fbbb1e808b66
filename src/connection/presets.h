#pragma once

#include "platform/text.h"

/// Count of rows in the preset table: 18 points and, as row 18, an empty text.
inline constexpr int kAnzahlPresets = 19;

/// Number of the preset rows that the buttons around the connection sketch choose.
inline constexpr int kAnzahlPresetKnoepfe = 16;

/// Connection point text of a preset row. A preset places one point, never a pair. A row outside 0
/// to 18 raises CInvalidArgException.
CString AnschlussPreset(int row);
